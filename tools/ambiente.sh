# Sourced by ./run, ./test and the tools: what the project needs around it on a Debian machine.
# Everything it makes lives under build/.

radice=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build="$radice/build"
wine64="$radice/tools/wine"
wineserver=/usr/lib/wine/wineserver

# One line "passed failed skipped" for each run of tests.
conti="$build/conti"
# totali: their sums; whether nothing failed.
totali() {
  awk '{p += $1; f += $2; s += $3}
    END {printf "%d passed, %d failed, %d skipped\n", p, f, s; exit f > 0}' "$conti"
}

passo() { printf '\n== %s\n' "$*"; }

# installa: every package of tools/packages that is missing.
installa() {
  local voluti mancanti=() p
  voluti=$(sed 's/#.*//' "$radice/tools/packages")
  for p in $voluti; do
    dpkg-query -W -f='${db:Status-Status}\n' "$p" 2>/dev/null | grep -qx installed || mancanti+=("$p")
  done
  [ ${#mancanti[@]} -eq 0 ] && return 0
  passo "Installing: ${mancanti[*]}"
  local come=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Packages are missing; run as root or install sudo." >&2; return 1; }
    come=(sudo)
  fi
  "${come[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q
  "${come[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends "${mancanti[@]}"
}

# lingue: the Italian and the English locale, in the build folder, so the system's own stay as they
# are. Wine takes the Windows locale from LC_ALL.
lingue() {
  local l
  mkdir -p "$build/locale"
  for l in it_IT en_US; do
    [ -d "$build/locale/$l.UTF-8" ] || localedef -i "$l" -f UTF-8 "$build/locale/$l.UTF-8" || true
  done
  export LOCPATH="$build/locale" TZ=Europe/Rome
  # The shell itself may not find them there and says so; its children do.
  { export LC_ALL=it_IT.UTF-8 LANG=it_IT.UTF-8; } 2>/dev/null
}

# prefisso NAME PREPARE: a private Wine prefix build/NAME, made once and then prepared by that
# function, exported for what follows.
prefisso() {
  export WINEPREFIX="$build/$1" WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
  export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=;winemenubuilder.exe=d}
  if [ ! -f "$WINEPREFIX/pronto" ]; then
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    "$wine64" wineboot -i
    "$2"
    "$wineserver" -k || true
    "$wineserver" -w
    touch "$WINEPREFIX/pronto"
  fi
  "$wineserver" -p 30 </dev/null >/dev/null 2>&1 || true
}

# prefisso_persona: the prefix in which a person works.
prefisso_persona() { prefisso wine prepara_persona; }
# prefisso_giro: one like it for the tour, where nobody's work is found or left.
prefisso_giro() {
  prefisso wine-giro prepara_persona
  rm -rf "$WINEPREFIX"/drive_c/users/*/AppData/Local/Ostrelle
}
# Pages open in this machine's own browser; Wine's is not part of the prefix.
prepara_persona() {
  "$wine64" reg add 'HKCR\.htm' /ve /d paginaweb /f >/dev/null
  "$wine64" reg add 'HKCR\paginaweb\shell\open\command' /ve \
    /d 'winebrowser.exe "%1"' /f >/dev/null
}

# prefisso_prove: the tests' prefix.
prefisso_prove() {
  prefisso wine-prove prepara_prove
  export OSTRELLE_UNITA_RETE=R:
}
# Windows that no window manager touches, and drive R:, which is the network folder \\server\dati, an
# empty folder in truth. Wine learns of a drive when it starts.
prepara_prove() {
  "$wine64" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null
  "$wine64" reg add 'HKLM\Software\Wine\Drives' /v r: /d network /f >/dev/null
  mkdir -p "$WINEPREFIX/dosdevices/unc/server/dati"
  ln -s unc/server/dati "$WINEPREFIX/dosdevices/r:"
}

# copia_prefisso FROM TO: a prefix's registry and drives once more.
copia_prefisso() {
  rm -rf "$2"
  mkdir -p "$2"
  cp -a "$1"/*.reg "$1/dosdevices" "$1/.update-timestamp" "$2"
}

# prefisso_installazione: beside the tests' prefix one like it, made anew, for those who install the
# program; Windows itself is shared.
prefisso_installazione() {
  local nuovo="$build/wine-installazione"
  copia_prefisso "$WINEPREFIX" "$nuovo"
  mkdir "$nuovo/drive_c"
  # A test that was ended may have left its own folder for the programs' data.
  sed -i 's|^"Local AppData"=str(2):.*|"Local AppData"=str(2):"%USERPROFILE%\\\\AppData\\\\Local"|' "$nuovo/user.reg"
  ln -s "$WINEPREFIX/drive_c"/* "$nuovo/drive_c"
  rm "$nuovo/drive_c/users"
  cp -a "$WINEPREFIX/drive_c/users" "$nuovo/drive_c"
  # Nothing there leads out of it, into this user's own folders; they must be there all the same.
  find "$nuovo/drive_c/users" -type l -exec rm {} \; -exec mkdir {} \;
}

# prefisso_doppio: the tests' prefix once more, its screen at 192 dpi; the drive is the same. Ends what
# runs in the first one.
prefisso_doppio() {
  local prima="$WINEPREFIX"
  "$wineserver" -k || true
  "$wineserver" -w
  export WINEPREFIX="$build/wine-doppi"
  copia_prefisso "$prima" "$WINEPREFIX"
  ln -s "$prima/drive_c" "$WINEPREFIX/drive_c"
  "$wine64" reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d 192 /f >/dev/null
  "$wineserver" -p 30 </dev/null >/dev/null 2>&1 || true
}

# avvia_wine: Wine's own background programs, started with nothing of ours open: one that held a
# test's output would keep whoever reads it waiting.
avvia_wine() {
  "$wine64" explorer.exe /desktop </dev/null >/dev/null 2>&1 &
  disown
  "$wine64" cmd /c ver </dev/null >/dev/null 2>&1
}

# riavvia_wine LANGUAGE: Wine anew, its background programs in another language. What they start
# brings their own, and the separators of the whole prefix would become those.
riavvia_wine() {
  "$wineserver" -k || true
  "$wineserver" -w
  "$wineserver" -p 30 </dev/null >/dev/null 2>&1 || true
  LC_ALL=$1.UTF-8 LANG=$1.UTF-8 avvia_wine 2>/dev/null
}

# schermo WxH [DPI]: a virtual display of its own, closed when the shell ends.
schermo() {
  local uscita
  uscita=$(mktemp)
  Xvfb -displayfd 3 -screen 0 "$1x24" -dpi "${2:-96}" -nolisten tcp 3>"$uscita" >/dev/null 2>&1 &
  schermo_pid=$!
  local n=0
  until [ -s "$uscita" ]; do
    n=$((n + 1))
    [ $n -lt 200 ] && kill -0 "$schermo_pid" 2>/dev/null || { echo "Xvfb does not start" >&2; return 1; }
    sleep 0.05
  done
  DISPLAY=":$(cat "$uscita")"
  export DISPLAY
  rm -f "$uscita"
}

# dischi: a volume of 256 KB for the tests to fill and one that cannot be written, with a read-only
# file "a.txt" on it, where this user may mount them; the tests find them by their Windows paths.
dischi() {
  local pieno="$build/disco-pieno" lettura="$build/disco-lettura"
  mkdir -p "$pieno" "$lettura"
  mountpoint -q "$pieno" || mount -t tmpfs -o size=256k tmpfs "$pieno" 2>/dev/null || return 0
  if ! mountpoint -q "$lettura"; then
    mount -t tmpfs tmpfs "$lettura" 2>/dev/null || return 0
    printf testo >"$lettura/a.txt"
    chmod 444 "$lettura/a.txt"
    mount -o remount,ro "$lettura"
  fi
  dischi_montati=("$pieno" "$lettura")
  pieno="Z:$pieno" lettura="Z:$lettura"
  export OSTRELLE_DISCO_PIENO="${pieno//\//\\}" OSTRELLE_SOLA_LETTURA="${lettura//\//\\}"
}

# chiudi: what the shell leaves behind when it ends.
chiudi() {
  [ -n "${WINEPREFIX:-}" ] && "$wineserver" -k 2>/dev/null
  [ -n "${schermo_pid:-}" ] && kill "$schermo_pid" 2>/dev/null
  [ -n "${dischi_montati:-}" ] && umount "${dischi_montati[@]}" 2>/dev/null
  return 0
}

# fuzza TARGET NEW RUNS SEED: one fuzz target, from the corpus that is kept; what it finds of new
# inputs lands in NEW/its name, which is emptied first.
fuzza() {
  local nome nuovi
  nome=$(basename "$1" _fuzz)
  nuovi="$2/$nome"
  rm -rf "$nuovi"
  mkdir -p "$nuovi"
  "$1" -seed="$4" -runs="$3" -max_len=256 -verbosity=0 -artifact_prefix="$nuovi-" "$nuovi" \
    "$radice/tests/fuzz/corpus/$nome"
}

# riduci TARGET NEW: what NEW/its name adds to the corpus that is kept, and the least of both.
riduci() {
  local nome minimo
  nome=$(basename "$1" _fuzz)
  minimo="$2/$nome-minimo"
  rm -rf "$minimo"
  mkdir -p "$minimo"
  "$1" -set_cover_merge=1 -max_len=256 -verbosity=0 "$minimo" "$radice/tests/fuzz/corpus/$nome" \
    "$2/$nome"
}

# configura PRESET: what CMake says is shown only when it fails.
configura() {
  cmake --preset "$1" >"$build/$1.log" 2>&1 || { cat "$build/$1.log"; return 1; }
}
