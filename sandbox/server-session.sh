# Sourced: the stand-in server for as long as the script runs. Wants: top (the project's folder), arch (x64 unless set).

# start_server FOLDER ARGUMENT...: starts it with these arguments, its output in FOLDER; sets url to its address.
start_server() {
  local output=$1/server.txt
  shift
  : >"$output"
  "$top/build/native/sandbox/server/corvane-server" "$@" >"$output" 2>&1 &
  server=$!
  trap 'kill $server 2>/dev/null || true' EXIT
  until url=$(sed -n 's/^listening on //p' "$output") && [ -n "$url" ]; do
    kill -0 $server 2>/dev/null || { cat "$output" >&2; exit 1; }
    sleep 0.05
  done
}

windows_path() { echo "Z:${1//\//\\}"; }

# Makes a folder of ours the Documents folder of the sandbox's user, in place of the person's own.
use_documents() {
  "$top/sandbox/wine" "${arch:-x64}" reg add 'HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders' \
    /v Personal /d "$(windows_path "$1")" /f >/dev/null
}
