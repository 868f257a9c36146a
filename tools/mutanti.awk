# The mutants that source files have: FILE, LINE, COLUMN, LENGTH, what stands there and what is to stand
# there instead, separated by tabs. For code as clang-format leaves it: a binary operator has blanks
# around it.

# Comments, texts and characters become blanks; columns stay.
function soloCodice(s, n, i, c, due, esce) {
    n = length(s)
    esce = ""
    for (i = 1; i <= n; i++) {
        c = substr(s, i, 1)
        due = substr(s, i, 2)
        if (commento) {
            if (due == "*/") { commento = 0; esce = esce " "; i++ }
            c = " "
        } else if (grezza) {
            if (due == ")\"") { grezza = 0; esce = esce "\""; i++; c = "\"" } else c = "x"
        } else if (due == "//") {
            break
        } else if (due == "/*") {
            commento = 1; esce = esce " "; i++; c = " "
        } else if (due == "R\"") {
            grezza = 1; esce = esce "x\""; i += 2; c = "x"
        } else if (c == "\"" || (c == "'" && substr(s, i - 1, 1) !~ /[0-9]/)) {
            # A closed text is one word to those who read statements.
            esce = esce "\""
            for (i++; i <= n && substr(s, i, 1) != c; i++) {
                if (substr(s, i, 1) == "\\") { i++; esce = esce "x" }
                esce = esce "x"
            }
            c = "\""
        }
        esce = esce c
    }
    return esce
}

function mutante(dove, lungo, nuovo) {
    printf "%s\t%d\t%d\t%d\t%s\t%s\n", FILENAME, FNR, dove, lungo, substr($0, dove, lungo), nuovo
}

function operatori(b, n, i, tre, due) {
    n = length(b)
    for (i = 2; i <= n; i++) {
        tre = substr(b " ", i, 3)
        due = substr(b " ", i, 2)
        if (substr(b, i - 1, 1) == " ") {
            if (tre in scambi) mutante(i, 2, scambi[tre])
            else if (due in scambi) mutante(i, 1, scambi[due])
        }
        if (due == "++" || due == "--") { mutante(i, 2, due == "++" ? "--" : "++"); i++ }
        else if (due ~ /^![^= ]/) mutante(i, 1, "")
    }
}

function costanti(b, i, parola) {
    for (i = 1; match(substr(b, i), /[A-Za-z0-9_.'"]+/); i += RLENGTH) {
        i += RSTART - 1
        parola = substr(b, i, RLENGTH)
        if (parola == "true") mutante(i, 4, "false")
        else if (parola == "false") mutante(i, 5, "true")
        else if (parola == "0") mutante(i, 1, "1")
        else if (parola ~ /^(0x[0-9A-Fa-f']+|[0-9][0-9']*)[uUlL]*$/) mutante(i, RLENGTH, "(" parola " + 1)")
    }
}

# A statement on one line that declares nothing.
function istruzione(b, testo, inizio, aperte, chiuse) {
    testo = b
    sub(/ +$/, "", testo)
    inizio = match(testo, /[^ ]/)
    testo = substr(testo, inizio)
    if (prima !~ /[;{}:]$/ || testo ~ /^(using|goto|delete|static_assert|case|default)[^A-Za-z0-9_]/) return
    if (testo !~ /^(break|continue|return);$/ && testo !~ /^throw .*;$/ &&
        testo !~ /^(\*|\+\+|--)?[A-Za-z_][A-Za-z0-9_:]*(((\.|->|\[|\()[^;]*)? ([-+*\/|&^%]|<<|>>)?= .*|(\.|->|\[|\().*)?;$/) return
    if (testo ~ /^[A-Za-z_:]+;$/ && testo !~ /^(break|continue|return);$/) return
    aperte = gsub(/[({[]/, "&", testo)
    chiuse = gsub(/[)}\]]/, "&", testo)
    if (aperte == chiuse) mutante(inizio, length(testo), ";")
}

BEGIN {
    n = split("<= <,>= >,== !=,!= ==,&& ||,|| &&,< <=,> >=,+ -,- +,+= -=,-= +=", coppie, ",")
    for (i = 1; i <= n; i++) { split(coppie[i], c, " "); scambi[c[1] " "] = c[2] }
}
FNR == 1 { prima = ";"; commento = 0; grezza = 0; salta = 0 }
{
    codice = soloCodice($0)
    if (codice ~ /^ *$/ || codice ~ /^#/) next
    # What is declared, but not done.
    if (codice ~ /^ *(static_assert|template|using)[^A-Za-z0-9_]/) salta = 1
    if (!salta) {
        operatori(codice)
        costanti(codice)
        istruzione(codice)
    }
    if (codice ~ /[;{] *$/) salta = 0
    prima = codice
    sub(/ +$/, "", prima)
}
