#!/usr/bin/env bash
# Takes the pictures of the windows for the help pages from the program itself, opened on the sample book:
#   help/take-pictures.sh
# The program must have been built (build/x64). The pictures are written to help/pages/pictures.
set -eu
cd "$(dirname "$0")/.."
source tests/picture-session.sh
source help/picture-tour.sh
start_session
show_sample_book help/pages/pictures
take_tour
