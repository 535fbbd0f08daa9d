#!/bin/bash
# own-installation: a person of the till's group can work, and change nothing but the settings.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"
own=$packaging/own-installation
dir=$work/果品\ 档口

refused usage "$own" --group games
refused "there is no group nowhere" "$own" --group nowhere "$dir"
refused "is no installation" "$own" --group games "$dir"
[ "$(id -u)" = 0 ] || { echo "the rest needs root" && exit 0; }

chmod 711 "$work"
"$packaging/make-installation" "$dir"
ORVANE_DB_PASSWORD=geheim "$packaging/connection-ini" --ini "$dir/Data/Data.ini" --host db --user till --database D
mkdir "$dir/Help" && echo help >"$dir/Help/index.htm"
install -m 755 /bin/true "$dir/orvane"
"$own" --group games "$dir"

gid=$(getent group games | cut -d: -f3)
cashier() { setpriv --reuid=nobody --regid=nogroup --groups="$gid" sh -c "cd '$dir' && $1" >/dev/null 2>&1; }
stranger() { setpriv --reuid=nobody --regid=nogroup --clear-groups sh -c "cd '$dir' && $1" >/dev/null 2>&1; }
may() { cashier "$1" || wrong "a cashier cannot: $1"; }
may_not() { ! cashier "$1" || wrong "a cashier can: $1"; }

check_rights() {
    may ./orvane
    for file in Config.ini Data/Data.ini Data/Table.ini Data/BCover.ini Help/index.htm; do may "cat $file"; done
    may 'echo "; x" >>Config.ini'
    may 'echo "; x" >>Data/BCover.ini'
    may 'echo x >单据PDF/a.pdf'
    for file in orvane Data/Data.ini Data/Table.ini Help/index.htm new Data/new; do may_not "echo x >>$file"; done
    for file in orvane Data/Data.ini Config.ini; do may_not "mv -f $file $file.away"; done
    for what in "cat Data/Data.ini" "cat Config.ini" ./orvane "ls"; do ! stranger "$what" || wrong "a stranger can: $what"; done
    same "group of a document" games "$(stat -c %G "$dir/单据PDF/a.pdf")"
}

checking "a cashier of the group works with it, nobody else reads it"
check_rights

checking "done again after the next installation, documents kept there stay whose they are"
install -m 755 /bin/true "$dir/orvane"
chmod 644 "$dir/Config.ini"
"$own" --group games "$dir"
same "owner of a document" nobody "$(stat -c %U "$dir/单据PDF/a.pdf")"
check_rights

checking "only root gives it away"
chmod -R a+rX "$dir"
if setpriv --reuid=nobody --regid=nogroup --clear-groups test -x "$own"; then
    refused "only root" setpriv --reuid=nobody --regid=nogroup --clear-groups "$own" --group games "$dir"
fi
