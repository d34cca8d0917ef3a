#!/bin/sh
# Stands in for the web browser in tests: writes down the address it is given (read by OpenedAddresses.cpp).
printf '%s\n' "$1" >>"$WINEPREFIX/drive_c/opened-addresses.txt"
