# Sourced by ./run: a person's way through the program, with real keys and mouse, on a virtual
# display. Leaves numbered pictures and the files in build/giro.

dove="$build/giro"

# attendi_finestra NAME: the X window of that title, which must come up within 20 seconds.
attendi_finestra() {
  local n=0 id
  until id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1) && [ -n "$id" ]; do
    n=$((n + 1))
    [ $n -lt 200 ] || { echo "The window \"$1\" does not come up." >&2; foto "errore"; return 1; }
    sleep 0.1
  done
  xdotool windowactivate --sync "$id" 2>/dev/null || true
  finestra=$id
}

# attendi_chiusa NAME: no window of that title any more, within 20 seconds.
attendi_chiusa() {
  local n=0
  while xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; do
    n=$((n + 1))
    [ $n -lt 200 ] || { echo "The window \"$1\" does not go." >&2; foto "errore"; return 1; }
    sleep 0.1
  done
}

# quieto: until two pictures of the screen in a row are the same.
quieto() {
  local prima="" dopo n=0
  while dopo=$(import -window root rgb:- 2>/dev/null | sha256sum); [ "$dopo" != "$prima" ] && [ $n -lt 60 ]; do
    prima=$dopo
    n=$((n + 1))
    sleep 0.15
  done
}

numero=0
foto() {
  quieto
  numero=$((numero + 1))
  import -window root "$dove/$(printf '%02d' "$numero")-$1.png"
  printf '  %02d %s\n' "$numero" "$1"
}

tasti() { xdotool key --clearmodifiers --delay 40 "$@"; }
scrivi() { xdotool type --clearmodifiers --delay 15 -- "$1"; }

giro() {
  passo "Tour"
  rm -rf "$dove"
  mkdir -p "$dove"
  cp tests/campioni/notizie.xml "$dove/notizie.xml"
  openbox >/dev/null 2>&1 &
  "$wine64" build/windows/Ostrelle.exe 2>/dev/null &
  programma=$!

  attendi_finestra 'Ostrelle  \[Nuovo Documento\]'
  foto "nuovo-documento"

  tasti alt+f
  foto "menu-file"
  tasti a
  attendi_finestra '^Apri$|^Open$'
  scrivi "Z:${dove//\//\\}\\notizie.xml"
  foto "dialogo-apri"
  tasti Return
  attendi_finestra 'Ostrelle  \[Z:.*notizie.xml\]'
  foto "feed-aperto"

  # The focus is in the title: write another one over it.
  tasti ctrl+a
  scrivi "Notizie dal circolo, edizione di dicembre"
  foto "titolo-cambiato"

  # An item through the editor, then another title for it, a question about it, left with No.
  tasti alt+c
  foto "menu-contenuto"
  tasti a
  attendi_finestra '^Edit$'
  scrivi "Osservazione delle Pleiadi"
  tasti Tab
  scrivi "https://circolo.example/pleiadi"
  foto "nuovo-elemento"
  tasti Return
  attendi_chiusa '^Edit$'
  foto "elemento-aggiunto"
  tasti alt+c m
  attendi_finestra '^Edit$'
  tasti ctrl+a
  scrivi "Osservazione delle Pleiadi, con il telescopio"
  tasti Return
  attendi_chiusa '^Edit$'
  foto "elemento-cambiato"
  tasti alt+c c
  attendi_finestra '^Attenzione$'
  foto "domanda-cancella"
  tasti Tab Return
  attendi_chiusa '^Attenzione$'

  tasti alt+f s
  quieto
  foto "salvato"
  grep -q 'edizione di dicembre' "$dove/notizie.xml"
  grep -q 'Pleiadi, con il telescopio' "$dove/notizie.xml"

  tasti alt+f c
  attendi_chiusa 'Ostrelle'
  wait "$programma"
  passo "Pictures and the saved feed: ${dove#"$radice/"}"
  ls "$dove"
}
