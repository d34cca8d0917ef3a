#!/usr/bin/env bash
# Runs one Windows program under Wine, in a session of its own, so that several can run at once:
#   tests/wine-run.sh program.exe argument...
# The exit code is the program's; 124 if it does not end within LINDREL_WINE_TIMEOUT seconds; 1 if it leaves a file or a
# process behind.
set -u
source "$(dirname "$0")/wine-env.sh"
wine_environment
make_template_prefix
trap 'exit 143' INT TERM
take_session || exit 1

# Now and then Wine 8 forgets a thread of a program that has ended, and the process stays forever. The last field of its
# state has its exit code. The loop starts no other programs, which would slow a busy machine down.
end_forgotten() { # process of timeout, file for the exit code
  local program fields state seen='' silence
  exec {silence}<> <(:)
  while kill -0 "$1"; do
    read -rt 1 -u "$silence" || true
    # No line end follows the number.
    read -r program <"/proc/$1/task/$1/children" || [ -n "$program" ] || continue
    read -r fields <"/proc/$program/stat" || continue
    fields=${fields##*) } state=${fields%% *}
    if [ "$state" = Z ] && [ "$seen" = Z ]; then
      echo $((${fields##* } >> 8)) >"$2"
      kill -9 "$program"
    fi
    seen=$state
  done 2>/dev/null
}
# The output goes through a file: a process of Wine that outlives the program would keep CTest waiting at a pipe. The file
# is emptied before anything reads it, since it still has the output of the last run.
: >"$session/output"
timeout -k 10 "${LINDREL_WINE_TIMEOUT:-900}" wine "$@" </dev/null >>"$session/output" 2>&1 9>&- &
program=$!
end_forgotten $program "$session/exit-code" >/dev/null 9>&- &
tail -n +1 -f -s 0.1 --pid=$program "$session/output" 9>&-
wait $program
result=$?
[ ! -s "$session/exit-code" ] || result=$(<"$session/exit-code")
rm -f "$session/exit-code"
if [ "$result" = 0 ]; then leave_session || result=1; else end_session; fi
exit "$result"
