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

# pronta NAME: the window is up and has drawn itself; keys before that would be lost.
pronta() {
  attendi_finestra "$1"
  quieto
}

# navigatore: a program that Wine takes for the browser; it only notes what it is given, a line each,
# in the file aperti.
navigatore() {
  mkdir -p "$build/giro-programmi"
  printf '#!/bin/sh\necho "$@" >>"%s/aperti"\n' "$dove" >"$build/giro-programmi/xdg-open"
  chmod +x "$build/giro-programmi/xdg-open"
  export PATH="$build/giro-programmi:$PATH"
}

# attendi_aperto TEXT: the browser was given an address that holds TEXT, within 20 seconds.
attendi_aperto() {
  local n=0
  until grep -q "$1" "$dove/aperti" 2>/dev/null; do
    n=$((n + 1))
    [ $n -lt 200 ] || { echo "Nothing opens $1." >&2; foto "errore"; return 1; }
    sleep 0.1
  done
}

# Pixels at 96 dpi: the middle of the grid's first row, below the top of the window's inside, and a
# row's height.
prima_riga=252
riga_alta=33

# su_riga N: the pointer over row N of the grid in the window found last, counted from 1.
su_riga() {
  xdotool mousemove --window "$finestra" 300 "$((prima_riga + ($1 - 1) * riga_alta))"
}

# trascina_riga FROM TO PICTURE: presses, moves a little at a time as a hand does, and releases.
trascina_riga() {
  local i
  su_riga "$1"
  xdotool mousedown 1
  for i in 1 2 3 4 5 6; do
    xdotool mousemove_relative -- 3 2
    sleep 0.05
  done
  su_riga "$2"
  foto "$3"
  xdotool mouseup 1
  quieto
}

# ordine TEXT...: the saved feed holds these texts, in this order.
ordine() {
  local ultimo=0 testo posto
  for testo in "$@"; do
    posto=$(grep -bo -m 1 "$testo" "$disco/notizie.xml" | head -n 1 | cut -d: -f1) || true
    [ "${posto:-0}" -gt "$ultimo" ] || { echo "The saved feed has \"$testo\" elsewhere." >&2; return 1; }
    ultimo=$posto
  done
}

giro() {
  passo "Tour"
  # A folder of the private prefix: the captions then show a path as a person's would be.
  disco="$WINEPREFIX/drive_c/feed"
  rm -rf "$dove" "$disco"
  mkdir -p "$dove" "$disco"
  cp tests/campioni/notizie.xml "$disco/notizie.xml"
  openbox >/dev/null 2>&1 &
  navigatore
  "$wine64" build/windows/Ostrelle.exe 2>/dev/null &
  programma=$!

  attendi_finestra 'Ostrelle  \[Nuovo Documento\]'
  foto "nuovo-documento"

  tasti alt+f
  foto "menu-file"
  tasti a
  attendi_finestra '^Apri$|^Open$'
  scrivi 'C:\feed\notizie.xml'
  foto "dialogo-apri"
  tasti Return
  attendi_finestra 'Ostrelle  \[C:.*notizie.xml\]'
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

  # The new item to the top, with the mouse.
  pronta 'Ostrelle  \[C:.*notizie.xml\]'
  trascina_riga 4 1 "trascinamento"
  foto "elemento-spostato"

  # Taken back, and done again.
  tasti ctrl+z
  foto "annullato"
  tasti ctrl+y
  foto "ripetuto"

  # Found by a word, with the system's find dialog; once more from the first, all round.
  tasti ctrl+f
  pronta '^Trova$|^Find$'
  scrivi "luna"
  tasti Return
  foto "trova"
  tasti Escape
  attendi_chiusa '^Trova$|^Find$'
  pronta 'Ostrelle  \[C:.*notizie.xml\]'
  tasti F3
  foto "trova-ancora"

  # The preview of the selected item, from the grid's own menu.
  xdotool click 3
  foto "menu-griglia"
  tasti Up Up Return # the entry above the last
  attendi_aperto '\.htm'

  tasti alt+f s
  pronta 'Ostrelle  \[C:.*notizie.xml\]'
  foto "salvato"
  ordine 'edizione di dicembre' 'Pleiadi, con il telescopio' 'Serata sulla Luna'

  # The page, opened when the program asks.
  tasti alt+f
  quieto
  tasti e
  pronta '^Salva con nome$|^Save As$'
  scrivi 'C:\feed\pagina.htm'
  foto "dialogo-pagina"
  tasti Return
  pronta '^Salva come pagina Web'
  foto "domanda-pagina"
  tasti Return
  attendi_chiusa '^Salva come pagina Web'
  attendi_aperto 'pagina\.htm'
  grep -q 'Pleiadi, con il telescopio' "$disco/pagina.htm"

  # Help: the guide, then who made the program.
  pronta 'Ostrelle  \[C:.*notizie.xml\]'
  tasti F1
  attendi_aperto 'Ostrelle\.htm'
  tasti alt+f Right Right
  foto "menu-aiuto"
  tasti i
  pronta '^Informazioni su'
  foto "informazioni"
  tasti Return
  attendi_chiusa '^Informazioni su'

  # A change that is not saved, and the program is gone: the next one offers it.
  pronta 'Ostrelle  \[C:.*notizie.xml\]'
  tasti alt+c
  quieto
  tasti m
  pronta '^Edit$'
  tasti ctrl+a
  scrivi "Le Pleiadi, rimandata"
  tasti Return
  attendi_chiusa '^Edit$'
  quieto
  kill -9 "$programma"
  wait "$programma" 2>/dev/null || true
  attendi_chiusa 'Ostrelle'
  "$wine64" build/windows/Ostrelle.exe 2>/dev/null &
  programma=$!
  pronta 'Ostrelle  \[Nuovo Documento\]'
  foto "lavoro-non-salvato"
  tasti F6 Return
  pronta 'Ostrelle  \[C:.*notizie.xml\]'
  foto "recuperato"
  tasti ctrl+s
  quieto
  ordine 'edizione di dicembre' 'Le Pleiadi, rimandata' 'Serata sulla Luna'

  tasti alt+f
  quieto
  tasti c
  attendi_chiusa 'Ostrelle'
  wait "$programma"
  cp "$disco"/* "$dove"
  passo "Pictures, the saved feed and the page: ${dove#"$radice/"}"
  ls "$dove"
}
