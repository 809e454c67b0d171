# Sourced: makes a Wine prefix ready for one run and gives it a display. Wants: top (the project's folder), arch
# (x64, x86) and dpi. Sets WINEPREFIX and DISPLAY; file descriptor 9 holds the prefix until the run ends.

export WINEPREFIX=${CORVANE_WINEPREFIX:-$top/build/wine/$arch} WINEDEBUG=${WINEDEBUG:--all}
# Without the debugger a program that crashes is gone; with it, it would wait for somebody to close a window.
export WINEDLLOVERRIDES="mscoree,mshtml=;winedbg.exe,winemenubuilder.exe=d"
# Wine names its files in the locale's encoding and takes its language from it; both are the same on every machine.
export LC_ALL=C.UTF-8
export WINEARCH=win64 # the commands of the 32-bit Wine set their own
PATH=$("$top/tools/wine-path" "$arch") || exit 2

# One run at a time uses a prefix: it holds the registration and the settings.
mkdir -p "$WINEPREFIX"
exec 9>"$WINEPREFIX/lock"
flock 9

if [ -z "${DISPLAY:-}" ]; then
  exec 8< <(exec Xvfb -displayfd 1 -screen 0 1400x1050x24 -nolisten tcp 2>/dev/null 9>&-)
  xvfb=$!
  # The desktop goes before its display, quietly; it may be gone already.
  trap '{ wineserver -k; wineserver -w; kill $xvfb; } 2>/dev/null || true' EXIT
  read -r -t 20 number <&8 || { echo "no display could be started" >&2; exit 2; }
  export DISPLAY=:$number
fi

# make_template: a Wine that no program of ours has run in, in place of this one's.
make_template() {
  rm -rf "$WINEPREFIX"
  mkdir "$WINEPREFIX"
  wineboot -i >/dev/null 2>&1 9>&- 7>&-
  # Documents and its like are folders of this Wine, not links into the person's home.
  find "$WINEPREFIX/drive_c/users" -maxdepth 2 -type l -exec sh -c 'rm "$1" && mkdir "$1"' sh {} \;
  # Wine looks for its own fonts (captions, the message font) only here.
  cp /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
  wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d corvane /f >/dev/null 9>&- 7>&-
  wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v corvane /d 1400x1050 /f >/dev/null 9>&- 7>&-
  wineserver -k
  wineserver -w
  touch "$WINEPREFIX/prepared"
}

# copy_template FOLDER: what the system never writes to again is shared, the rest is the copy's own.
copy_template() {
  local shared
  rm -rf "$WINEPREFIX"/{drive_c,dosdevices,registered,dpi}
  cp -a "$1"/{dosdevices,.update-timestamp,*.reg} "$WINEPREFIX/"
  tar -C "$1" -c --exclude=drive_c/windows/system32 --exclude=drive_c/windows/syswow64 drive_c | tar -C "$WINEPREFIX" -x
  for shared in "$1"/drive_c/windows/{system32,syswow64}; do
    [ ! -e "$shared" ] || cp -al "$shared" "$WINEPREFIX/drive_c/windows/" || exit 2
  done
}

if [ ! -e "$WINEPREFIX/prepared" ]; then
  template=$top/build/wine/template-$arch
  mkdir -p "${template%/*}"
  exec 7>"$template.lock"
  flock 7
  [ -e "$template/prepared" ] || (WINEPREFIX=$template && make_template)
  exec 7>&-
  copy_template "$template"
  touch "$WINEPREFIX/prepared"
fi
# The share that Windows makes of its disk.
mkdir -p "$WINEPREFIX/dosdevices/unc/localhost"
ln -sfn ../../c: "$WINEPREFIX/dosdevices/unc/localhost/C$"
if [ "$(cat "$WINEPREFIX/dpi" 2>/dev/null)" != "$dpi" ]; then
  wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$dpi" /f >/dev/null 9>&-
  wineserver -w
  echo "$dpi" >"$WINEPREFIX/dpi"
fi
