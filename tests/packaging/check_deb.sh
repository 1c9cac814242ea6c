#!/bin/sh
# Builds the Debian package from the build folder (cpack, into a scratch folder),
# unpacks it without installing it, and checks what a user gets: the two programs
# running from the unpacked tree, the desktop entry, icon, MIME type and manual
# pages where the desktop looks for them, and the package's fields.
# usage: check_deb.sh CPACK BUILD_DIR VERSION
# Exit status 77 (skipped) without cpack, dpkg-deb or dpkg-shlibdeps.
set -u
cpack=$1 build=$2 versao=$3

for programa in "$cpack" dpkg-deb dpkg-shlibdeps; do
  if ! command -v "$programa" >/dev/null 2>&1; then
    echo "$programa não está instalado (cmake, dpkg, dpkg-dev): o pacote .deb não é testado"
    exit 77
  fi
done

tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
falhas=0
falha() { echo "FALHA: $*"; falhas=$((falhas + 1)); }

if ! (cd "$build" && "$cpack" --config CPackConfig.cmake -G DEB -B "$tmp/pacote") >"$tmp/cpack.log" 2>&1; then
  cat "$tmp/cpack.log"
  echo "FALHA: cpack não gerou o pacote"
  exit 1
fi
deb=$(ls "$tmp"/pacote/*.deb 2>/dev/null)
if [ "$(echo "$deb" | wc -w)" != 1 ]; then
  cat "$tmp/cpack.log"
  echo "FALHA: esperado um .deb em $tmp/pacote, achado: '$deb'"
  exit 1
fi
echo "pacote: $(basename "$deb")"

# ---- the package's fields ----
campo() { dpkg-deb -f "$deb" "$1"; }
[ "$(campo Package)" = pilarix ] || falha "Package é '$(campo Package)'"
[ "$(campo Version)" = "$versao" ] || falha "Version é '$(campo Version)', o projeto é $versao"
[ "$(campo Section)" = science ] || falha "Section é '$(campo Section)'"
[ -n "$(campo Maintainer)" ] || falha "sem Maintainer"
# The window's and the drawing's libraries must be among the dependencies, or the
# installed program would not start on a machine without the build's packages.
for lib in libqt6widgets6 libqt6svg6 libdxflib; do
  campo Depends | grep -q "$lib" || falha "Depends não tem $lib: '$(campo Depends)'"
done

# ---- the files, unpacked where dpkg would put them ----
raiz="$tmp/raiz"
dpkg-deb -x "$deb" "$raiz" || { echo "FALHA: dpkg-deb -x"; exit 1; }
for f in usr/bin/pilarix usr/bin/pilarix-cli \
         usr/share/applications/pilarix.desktop \
         usr/share/icons/hicolor/scalable/apps/pilarix.svg \
         usr/share/mime/packages/pilarix.xml \
         usr/share/man/man1/pilarix.1 usr/share/man/man1/pilarix-cli.1; do
  [ -e "$raiz/$f" ] || falha "o pacote não instala /$f"
done
[ -x "$raiz/usr/bin/pilarix" ] || falha "/usr/bin/pilarix não é executável"

# The desktop entry opens a project with the window, shows the installed icon and
# claims the type the MIME package declares.
entrada="$raiz/usr/share/applications/pilarix.desktop"
if [ -e "$entrada" ]; then
  if command -v desktop-file-validate >/dev/null 2>&1; then
    desktop-file-validate "$entrada" || falha "desktop-file-validate recusa pilarix.desktop"
  else
    echo "desktop-file-validate não está instalado (desktop-file-utils): a entrada não é validada"
  fi
  exec_=$(sed -n 's/^Exec=//p' "$entrada")
  [ -x "$raiz/usr/bin/${exec_%% *}" ] || falha "Exec=$exec_ não é um programa do pacote"
  icone=$(sed -n 's/^Icon=//p' "$entrada")
  [ -e "$raiz/usr/share/icons/hicolor/scalable/apps/$icone.svg" ] || falha "Icon=$icone não é instalado"
  tipo=$(sed -n 's/^MimeType=\([^;]*\);$/\1/p' "$entrada")
  grep -q "<mime-type type=\"$tipo\">" "$raiz/usr/share/mime/packages/pilarix.xml" 2>/dev/null \
    || falha "MimeType=$tipo não é o tipo declarado em pilarix.xml"
fi

if command -v groff >/dev/null 2>&1; then
  for m in pilarix pilarix-cli; do
    aviso=$(groff -man -Tutf8 -ww -z -K utf8 "$raiz/usr/share/man/man1/$m.1" 2>&1)
    [ -z "$aviso" ] || falha "groff avisa em $m.1: $aviso"
  done
fi

# ---- the installed command line calculates ----
(cd "$raiz" && ./usr/bin/pilarix-cli --sem-padrao --json) >"$tmp/saida.json" 2>"$tmp/erros.txt"
status=$?
[ "$status" = 0 ] || { cat "$tmp/erros.txt"; falha "pilarix-cli do pacote terminou com $status"; }
grep -q '^{' "$tmp/saida.json" && grep -q '"Erros": *"Ok"' "$tmp/saida.json" \
  || { head -c 400 "$tmp/saida.json"; echo; falha "pilarix-cli do pacote não escreveu o JSON com \"Erros\": \"Ok\""; }

[ "$falhas" = 0 ] || exit 1
echo "ok: pacote, arquivos instalados e pilarix-cli do pacote"
