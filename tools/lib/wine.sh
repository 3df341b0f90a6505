# The Wine prefix of this clone and the display that Windows programs are shown on.
# shellcheck shell=bash

export WINEPREFIX=$build/wine-prefix
export WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"

# Wine here does not look into the folder of its own fonts; controls want System and MS Sans Serif,
# and Arial and Times New Roman in the shapes that stand in for them. Without a window manager Wine
# waits for each window to be mapped unless windows are unmanaged.
write_prefix_settings() {
  cat <<'REG'
REGEDIT4

[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
"Arial"="Liberation Sans"
"Times New Roman"="Liberation Serif"
"Courier New"="Liberation Mono"

[HKEY_CURRENT_USER\Software\Wine\X11 Driver]
"Managed"="N"

[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000
REG
}

fill_wine_prefix() {
  rm -rf "$WINEPREFIX"
  wineboot -i || return 1
  wineserver -w
  local fonts=$WINEPREFIX/drive_c/windows/Fonts
  mkdir -p "$fonts"
  dpkg -L fonts-wine | grep -E '\.(ttf|fon)$' | xargs -d '\n' cp -t "$fonts" || return 1
  write_prefix_settings >"$WINEPREFIX/settings.reg"
  wine regedit /S "$WINEPREFIX/settings.reg" || return 1
  wineserver -w
  cksum <"${BASH_SOURCE[0]}" >"$WINEPREFIX/complete"
}

prefix_is_complete() {
  [ "$(cat "$WINEPREFIX/complete" 2>/dev/null)" = "$(cksum <"${BASH_SOURCE[0]}")" ]
}

# Makes the prefix once, and again when this file has changed since; then holds it (descriptor 8)
# against those who would make it anew or end its programs while we use it.
use_wine_prefix() {
  command -v wine >/dev/null || die "Wine is not installed; run tools/test or tools/gallery, which install it."
  exec 8>"$build/.wine"
  if ! prefix_is_complete; then
    flock -x 8
    prefix_is_complete || step "preparing a Wine prefix in build/" "$build/logs/wine-prefix.log" fill_wine_prefix
  fi
  flock -s 8
}

# Ends what Wine left running in this clone's prefix when nobody else uses it, and the virtual display
# when we started it.
end_wine() {
  flock -n -x 8 2>/dev/null && wineserver -k 2>/dev/null
  [ -z "${display_pid:-}" ] || kill "$display_pid" 2>/dev/null
  display_pid=
}

# Starts a display of our own; the server itself picks a number that is free.
start_virtual_display() {
  command -v Xvfb >/dev/null || die "Xvfb is not installed; run tools/test or tools/gallery, which install it."
  local number_file number
  number_file=$(mktemp "$build/display.XXXXXX") || die "cannot write in $build: check the disk's space."
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$number_file" >/dev/null 2>&1 8>&- 9>&- &
  display_pid=$!
  for _ in $(seq 100); do
    number=$(cat "$number_file")
    [ -n "$number" ] && break
    sleep 0.1
  done
  rm -f "$number_file"
  [ -n "$number" ] || die "the virtual display did not start; is another program holding all displays?"
  export DISPLAY=:$number
}
