# Counts requests to Wine's server in its own trace (wineserver -d): for each stretch between a mark
# "misura-NAME" and the next one, a line "NAME COUNT". A stretch of a program's start counts what
# the threads born in it ask, any other what the thread asks that made the mark.
BEGIN {
  n = split(avvii, nomi, " ")
  for (i = 1; i <= n; ++i) avvio[nomi[i]] = 1
}
# A request; its answer has no blank behind the parenthesis.
/^[0-9a-f]+: [a-z_0-9]+\( / {
  if (match($0, /name=L"misura-[a-z]+"/)) {
    if (nome != "" && nome != "fine") print nome, conto
    nome = substr($0, RSTART + 14, RLENGTH - 15)
    chi = $1
    conto = 0
    split("", nati)
    next
  }
  if (nome == "") next
  if ($2 ~ /^init(_first)?_thread\($/) nati[$1] = 1
  if (nome in avvio ? $1 in nati : $1 == chi) ++conto
}
