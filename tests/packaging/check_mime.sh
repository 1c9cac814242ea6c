#!/bin/sh
# The MIME type of a project, as a file manager sees it once the database holds
# pilarix.xml: projects named *.txt (as the window writes them, as pilarix-cli
# saves them, with Unix line ends, in Windows-1252, without the .txt) are
# application/x-pilarix-projeto; other .txt files stay text/plain.
# usage: check_mime.sh MIME_TYPE_PROGRAM PILARIX_XML PROJECT PILARIX_CLI
# Exit status 77 (skipped) without update-mime-database (shared-mime-info).
set -u
programa=$1 xml=$2 projeto=$3 cli=$4

if ! command -v update-mime-database >/dev/null 2>&1; then
  echo "update-mime-database não está instalado (shared-mime-info): o tipo MIME não é testado"
  exit 77
fi
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
# As the package leaves it: pilarix.xml beside the system's types, in one database.
freedesktop=/usr/share/mime/packages/freedesktop.org.xml
if [ ! -r "$freedesktop" ]; then
  echo "$freedesktop não existe (shared-mime-info): o tipo MIME não é testado"
  exit 77
fi
mkdir -p "$tmp/share/mime/packages" "$tmp/home" "$tmp/arquivos"
cp "$freedesktop" "$xml" "$tmp/share/mime/packages/"
update-mime-database "$tmp/share/mime" >/dev/null 2>&1 || { echo "FALHA: update-mime-database recusa $xml"; exit 1; }

a="$tmp/arquivos"
cp "$projeto" "$a/janela.txt"
tr -d '\r' <"$projeto" >"$a/unix.txt"
LC_ALL=C sed 's/\xc3\xa7/\xe7/' "$projeto" >"$a/windows-1252.txt"
cp "$projeto" "$a/sem-extensao"
(cd "$a" && "$cli" --sem-padrao --set Combo1="Aço CA-60B" --salvar "$a/salvo.txt" >/dev/null) \
  || { echo "FALHA: pilarix-cli --salvar"; exit 1; }
printf 'Lista de compras\r\narroz\r\nfeijão\r\n' >"$a/nota.txt"
printf 'nome;Nd;Md\ntopo;400;10000\nvento;200;15000\n' >"$a/casos.txt"
printf 'O pilar P1 usa Aço CA-50A, 20 x 50 cm.\n' >"$a/texto-sobre-aco.txt"

falhas=0
confere() {
  achado=$(XDG_DATA_HOME="$tmp/home" XDG_DATA_DIRS="$tmp/share" "$programa" "$a/$1")
  if [ "$achado" = "$2" ]; then
    echo "ok: $1 é $2"
  else
    echo "FALHA: $1 é $achado, esperado $2"
    falhas=$((falhas + 1))
  fi
}
confere janela.txt application/x-pilarix-projeto
confere unix.txt application/x-pilarix-projeto
confere windows-1252.txt application/x-pilarix-projeto
confere salvo.txt application/x-pilarix-projeto
confere sem-extensao application/x-pilarix-projeto
confere nota.txt text/plain
confere casos.txt text/plain
confere texto-sobre-aco.txt text/plain
[ "$falhas" = 0 ]
