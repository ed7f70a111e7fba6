#!/usr/bin/env bash
# provaDebian.sh [PACKAGE]: proves the Debian package, by default the one in build/pacchetto/, as root:
# lintian finds nothing; into a Debian that has nothing but its base it brings along all that it needs;
# there it starts, opens a model and the manual and prints, and one whole task is done with it; and purged it leaves
# the system as it was. Pictures of the windows are left in build/provaDebian.
#
# The clean Debian is made from the network once and kept as build/radice.tar; remove that for a new one.
set -euo pipefail
pacchetto=${1:+$(realpath -e "$1")}
cd "$(dirname "$0")/.."
if [ -z "$pacchetto" ]; then
  pacchetto=$(find "$PWD/build/pacchetto" -name '*.deb' 2> /dev/null | sort -V | tail -1 || true)
  [ -n "$pacchetto" ] || { echo "provaDebian.sh: no package there: run packaging/debian.sh first" >&2; exit 1; }
fi
[ "$(id -u)" -eq 0 ] || exec sudo "$(realpath packaging/provaDebian.sh)" "$pacchetto"
if [ -z "${PLAKERA_FOGLI:-}" ]; then
  cmake/installa.sh provaPacchetto
  exec packaging/conCoda.sh packaging/provaDebian.sh "$pacchetto"
fi
export LC_ALL=C.UTF-8
umask 022
lavoro=$(mktemp -d /var/tmp/provaDebian.XXXXXX)
radice=$lavoro/radice
programma=
schermo=
gestore=
dove=$PWD/build/provaDebian
rm -rf "$dove"
mkdir -p "$dove"
. packaging/verifiche.sh
. packaging/compito.sh

monti() { findmnt -rno TARGET | grep -F "$radice/" || true; }
finisce() {
  # It is a child of the shell that waits for it.
  [ -z "$programma" ] || pkill -P "$programma" || true
  [ -z "$gestore" ] || kill "$gestore" 2>/dev/null || true
  [ -z "$schermo" ] || kill "$schermo" 2>/dev/null || true
  monti | while read -r posto; do umount "$posto" || true; done
  # Nothing that is still mounted may be removed with it.
  [ -n "$(monti)" ] || rm -rf "$lavoro"
}
trap finisce EXIT
passo() { printf '== %s\n' "$*"; }
fallisce() { echo "FAILED: $*" >&2; exit 1; }

passo "lintian"
lintian --allow-root --fail-on error,warning --display-info --tag-display-limit 0 "$pacchetto" | tee "$lavoro/lintian"
! grep -q hardening-no "$lavoro/lintian" || fallisce "not hardened"

passo "what is in it"
dpkg-deb --field "$pacchetto" Package Version Section Installed-Size Depends Recommends
dpkg-deb --extract "$pacchetto" "$lavoro/estratto"
for lato in 16 22 24 32 48 64 128 256; do
  misure=$(file -b "$lavoro/estratto/usr/share/icons/hicolor/${lato}x${lato}/apps/plakera.png")
  [[ $misure == *"$lato x $lato,"* ]] || fallisce "icon of $lato: $misure"
done
file -b "$lavoro/estratto/usr/lib/plakera/plakera" | grep -q ', stripped' || fallisce "not stripped"
mkdir "$lavoro/generati" "$lavoro/generati/it"
cp "$lavoro"/estratto/usr/share/metainfo/*.xml "$lavoro/generati"
zcat "$lavoro/estratto/usr/share/man/man1/plakera.1.gz" > "$lavoro/generati/plakera.1"
zcat "$lavoro/estratto/usr/share/man/it/man1/plakera.1.gz" > "$lavoro/generati/it/plakera.1"
packaging/provaScrivania.sh "$lavoro/generati"

passo "a clean Debian"
if [ ! -f build/radice.tar ]; then
  specchio=$(apt-cache policy | sed -n 's/.* \(http[^ ]*\) bookworm\/main .*/\1/p' | head -1)
  debootstrap --variant=minbase bookworm "$radice" "${specchio:-http://deb.debian.org/debian}" > "$lavoro/debootstrap" ||
    { tail -5 "$lavoro/debootstrap" >&2; fallisce "no clean Debian to be had"; }
  rm -f "$radice"/var/cache/apt/archives/*.deb
  tar -C "$radice" -cf build/radice.tar.parte . && mv build/radice.tar.parte build/radice.tar
else
  mkdir "$radice"
  tar -C "$radice" -xf build/radice.tar
fi
cp -L /etc/resolv.conf "$radice/etc/resolv.conf"
# The way that this machine takes to the network, where it has one of its own.
apt-config dump | grep -E '^Acquire::https?::Proxy' > "$radice/etc/apt/apt.conf.d/99proxy" || true
mount -t proc proc "$radice/proc"
dentro() { chroot "$radice" env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
  DEBIAN_FRONTEND=noninteractive "$@"; }
# No service starts in there.
printf '#!/bin/sh\nexit 101\n' > "$radice/usr/sbin/policy-rc.d"
chmod +x "$radice/usr/sbin/policy-rc.d"
dentro apt-get update -qq
# A desktop's caches, which the package's files go into and must come out of again.
dentro apt-get install -y -qq --no-install-recommends desktop-file-utils shared-mime-info hicolor-icon-theme \
  gtk-update-icon-cache man-db > "$lavoro/apt" 2>&1 || { tail -5 "$lavoro/apt" >&2; fallisce "apt-get"; }
# What it needs first, so that afterwards it alone comes and goes.
cp "$pacchetto" "$radice/root/plakera.deb"
mapfile -t altri < <(dentro apt-get install -s --no-install-recommends /root/plakera.deb |
  sed -n 's/^Inst \([^ ]*\) .*/\1/p' | grep -vx plakera)
passo "${#altri[@]} packages of the system that it needs"
dentro apt-get install -y -qq --no-install-recommends "${altri[@]}" > "$lavoro/apt" 2>&1 ||
  { tail -5 "$lavoro/apt" >&2; fallisce "apt-get"; }
# Recommended, and on every desktop: among the Liberation fonts alone windows are set in a typewriter's letters.
dentro apt-get install -y -qq --no-install-recommends fonts-dejavu-core > "$lavoro/apt" 2>&1 ||
  { tail -5 "$lavoro/apt" >&2; fallisce "apt-get"; }
# What opens documents: it writes down which.
printf '#!/bin/sh\necho "$1" >> /tmp/aperti\n' > "$radice/usr/bin/xdg-open"
chmod +x "$radice/usr/bin/xdg-open"
dentro useradd --create-home prova
cp -r sample "$radice/home/prova/dati"
mkdir -m 700 "$radice/tmp/prova"
chroot "$radice" chown -R prova: /home/prova /tmp/prova
rm "$radice/root/plakera.deb"

# Every name with its type, mode and bytes, but for what the package system and the manual's index note of
# their own work, and what belongs to the kernel or the user.
fotografa() {
  (cd "$radice" && find . -path ./proc -prune -o -path ./home/prova -prune -o -path ./var/log -prune \
    -o -path ./var/cache/apt -prune -o -path ./var/lib/apt -prune -o -path ./var/lib/dpkg -prune \
    -o -path ./tmp -prune -o -path ./root/plakera.deb -o -path ./var/cache/ldconfig -prune \
    -o -path ./var/cache/man -prune -o \( -type f -printf '%p %y %m ' -exec md5sum -z {} \; -printf '\n' \) \
    -o -printf '%p %y %m %l\n') | tr '\0' '\n' | sed '/^$/d' | sort
  dentro dpkg-query -W -f '${db:Status-Abbrev} ${Package}\n'
  dentro find /var/lib/dpkg/info -name 'plakera*'
}
passo "installing"
fotografa > "$lavoro/prima"
cp "$pacchetto" "$radice/root/plakera.deb"
dentro apt-get install -y -qq --no-install-recommends /root/plakera.deb > "$lavoro/apt" 2>&1 ||
  { tail -5 "$lavoro/apt" >&2; fallisce "apt-get"; }
grep -q '^application/x-plakera-modello$' "$radice/usr/share/mime/types" || fallisce "the type is not known"
grep -q 'application/x-plakera-modello=plakera.desktop' "$radice/usr/share/applications/mimeinfo.cache" ||
  fallisce "models are not opened with the program"

utente() { chroot --userspec=prova:prova "$radice" env -i HOME=/home/prova USER=prova LC_ALL=C.UTF-8 \
  PATH=/usr/local/bin:/usr/bin:/bin XDG_RUNTIME_DIR=/tmp/prova ${video:+DISPLAY=$video} "$@"; }
ini=/home/prova/dati/Contabilita/ini

passo "printing"
utente plakera --version
utente plakera --modello $ini/Fattura_Rossi.Mod --pdf /home/prova/foglio.pdf --anteprima /home/prova/foglio.png
pdftotext "$radice/home/prova/foglio.pdf" - | grep -q '128/A' || fallisce "no text on the sheet"
pdffonts "$radice/home/prova/foglio.pdf" | grep -q LiberationSans || fallisce "not in Arial's place"
rm "$radice"/home/prova/foglio.*

passo "starting"
Xvfb -displayfd 3 -ac -screen 0 1366x768x24 3> "$lavoro/numero" 2>/dev/null &
schermo=$!
for ((i = 0; i < 300; i++)); do [ -s "$lavoro/numero" ] && break; sleep 0.1; done
video=:$(cat "$lavoro/numero")
export DISPLAY=$video
openbox 2>/dev/null & # it closes windows when asked to
gestore=$!
for ((i = 0; i < 300; i++)); do xprop -root _NET_SUPPORTING_WM_CHECK | grep -q '#' && break; sleep 0.1; done
# Opens what is named, waits for the window, does something to it and closes it.
apre() { # TITLE COMMAND [ARGUMENT...]
  local titolo=$1 azione=$2 finestra
  shift 2
  utente plakera --dati /home/prova/dati "$@" &
  programma=$!
  finestra=$(timeout 120 xdotool search --sync --onlyvisible --name "$titolo" | head -1) || true
  [ -n "$finestra" ] || fallisce "no window $titolo"
  $azione "$finestra"
  for ((i = 0; i < 60; i++)); do
    # One window after the other, the editor's and the start window's.
    for finestra in $(xdotool search --onlyvisible --name '^(Plakera|Anteprima)' 2>/dev/null); do
      timeout 10 xdotool windowactivate --sync "$finestra" key alt+F4 2>/dev/null || true
    done
    kill -0 $programma 2>/dev/null || break
    sleep 0.5
  done
  ! kill $programma 2>/dev/null || fallisce "the windows of $titolo do not close"
  wait $programma || fallisce "the program ended with $?"
  programma=
}
manuale() {
  xdotool windowactivate --sync "$1" key F1
  for ((i = 0; i < 300; i++)); do [ -s "$radice/tmp/aperti" ] && break; sleep 0.1; done
  local aperto
  aperto=$(sed 's|^file://||' "$radice/tmp/aperti")
  [ -f "$radice$aperto" ] || fallisce "F1 opens ${aperto:-nothing}"
  echo "F1 opens $aperto"
}
apre '^Plakera - Modelli stampa' manuale
apre '^Plakera: Modello Fattura_Rossi\.Mod$' true $ini/Fattura_Rossi.Mod
nienteInPiu() {
  local lasciati
  lasciati=$(cd "$radice/home/prova" && find . -type f -not -path './dati/*' -not -path './.cache/fontconfig/*' -not -name '.bash*' -not -name .profile)
  [ -z "$lasciati" ] || fallisce "the user's folder holds $lasciati"
  [ -z "$(ls -A "$radice/tmp/prova")" ] || fallisce "the lock of the one instance is left"
}
nienteInPiu
diff -r sample "$radice/home/prova/dati" || fallisce "the models have changed"

passo "one whole task"
# The print server's folder stands in there under its own name.
coda=$(dirname "$CUPS_SERVER")
mkdir -p "$radice$coda"
mount --bind "$coda" "$radice$coda"
utente mkdir /home/prova/.config
utente cp -r /home/prova/dati /home/prova/lavoro
printf '[INI]\ndirtxt=/home/prova/lavoro\n' > "$radice/home/prova/.config/vastrel.ini"
casaUtente=$radice/home/prova
archivio=$casaUtente/lavoro/Contabilita/ini
AvviaProgramma() {
  utente env CUPS_SERVER="$CUPS_SERVER" plakera &
  programma=$!
}
ProgrammaFinito() { ! kill -0 $programma 2>/dev/null; }
EsportaCompito() {
  utente plakera --modello /home/prova/lavoro/Contabilita/ini/Compito.Mod --pdf /home/prova/atteso.pdf &&
    mv "$casaUtente/atteso.pdf" "$dove/"
}
Compito
[ $falliti -eq 0 ] || fallisce "$falliti of $((riusciti + falliti)) checks of the task"
wait $programma || fallisce "the program ended with $?"
programma=
umount "$radice$coda"
rm -r "$casaUtente/lavoro" "$casaUtente/.config" "$casaUtente/0logo.jpg"
nienteInPiu

passo "purging"
dentro apt-get purge -y -qq plakera > "$lavoro/apt" 2>&1 || { tail -5 "$lavoro/apt" >&2; fallisce "apt-get"; }
rm -f "$radice/root/plakera.deb"
fotografa > "$lavoro/dopo"
diff "$lavoro/prima" "$lavoro/dopo" || fallisce "it leaves traces"
echo "$(wc -l < "$lavoro/dopo") names, the same as before"
echo "provaDebian: all well"
