#!/bin/bash
# The ini files of an installation: laid down once, kept afterwards, read back as written.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"

# value FILE SECTION KEY: as the program reads it: trimmed, without one pair of quotes.
value() {
    awk -v section="[$2]" -v key="$3" '
        /^\[/ { inside = ($0 == section) }
        inside && index($0, key "=") == 1 { v = substr($0, length(key) + 2); gsub(/^[ \t]+|[ \t]+$/, "", v)
            if (v ~ /^".*"$/ || v ~ /^\047.*\047$/) v = substr(v, 2, length(v) - 2)
            print v; exit }' "$1"
}

checking "Config.ini, BCover.ini and Table.ini"
"$packaging/make-installation" "$work/program"
config=$work/program/Config.ini
same "AccNum, Client, UserName, PaperSize, SplashTime" "1|||9|800" \
    "$(for key in AccNum Client UserName PaperSize SplashTime; do value "$config" Define $key; done | paste -sd'|')"
same "background" "0|" "$(value "$work/program/Data/BCover.ini" Pic PicStatus)|$(value "$work/program/Data/BCover.ini" Pic FileName)"
table=$work/program/Data/Table.ini
same "TableNum" 14 "$(value "$table" TableInfo TableNum)"
same "entries" 14 "$(grep -c '^\[T[0-9]*\]$' "$table")"
for i in {1..14}; do
    name=$(value "$table" "T$i" TableName)
    grep -q "^CREATE TABLE $name (" "$root/core/schema/tables.sql" || wrong "T$i names <$name>, which is no table"
    [ -n "$(value "$table" "T$i" TableText)" ] || wrong "T$i has no text"
done
# Everything that business writes, under the names of the tables, once each.
same "tables" "CheckOut CheckOut_B Count_Bill CustDebit Cust_List DFN_Pack_B EStore_List ErrInfo Fee_List Foregift_RTN PRD_List Pack_List Sal_List Sal_List_B" \
    "$(for i in {1..14}; do value "$table" "T$i" TableName; done | sort | paste -sd' ')"
same "first and last" "PRD_List货源登记 Cust_List客户信息" \
    "$(value "$table" T1 TableName)$(value "$table" T1 TableText) $(value "$table" T14 TableName)$(value "$table" T14 TableText)"

checking "a second installation keeps the settings of the site"
echo "[Define]" >"$config"
rm "$work/program/Data/BCover.ini"
(cd "$work" && "$packaging/make-installation" program)
same "Config.ini" "[Define]" "$(cat "$config")"
same "BCover.ini comes back" 0 "$(value "$work/program/Data/BCover.ini" Pic PicStatus)"
refused "cannot make the folder" "$packaging/make-installation" /proc/nowhere
refused "usage" "$packaging/make-installation"

checking "the connection file for a socket"
ini=$work/program/Data/Data.ini
"$packaging/connection-ini" --ini "$ini" --socket /run/db.sock --user root --database Orvane_PUB
same "Drive" MYSQL "$(value "$ini" DBType Drive)"
same "DataProp" "localhost|root||Orvane_PUB" "$(for key in ServerName UserID PWD DataBase; do value "$ini" DataProp $key; done | paste -sd'|')"
same "ConnStr" "DRIVER={MySQL ODBC 3.51 Driver};SERVER=localhost;SOCKET=/run/db.sock;DATABASE=Orvane_PUB;UID=root;PWD=;" "$(value "$ini" MYSQL ConnStr)"
same "mode" 600 "$(stat -c %a "$ini")"

checking "the connection file for a host, written over the other one"
ORVANE_DB_PASSWORD=geheim "$packaging/connection-ini" --ini "$ini" --host db.lan --port 3307 --user till --database S2
same "DataProp" "db.lan|till|geheim|S2" "$(for key in ServerName UserID PWD DataBase; do value "$ini" DataProp $key; done | paste -sd'|')"
same "ConnStr" "DRIVER={MySQL ODBC 3.51 Driver};SERVER=db.lan;PORT=3307;DATABASE=S2;UID=till;PWD=geheim;" "$(value "$ini" MYSQL ConnStr)"

checking "passwords that would end a value are put in braces or quotes"
for word in 'a;b' ' a ' '"a"' "'a'" 'a}b' '{a}' 'a=b' 'a;}b' '密码'; do
    ORVANE_DB_PASSWORD=$word "$packaging/connection-ini" --ini "$ini" --host h --user u --database d
    same "PWD" "$word" "$(value "$ini" DataProp PWD)"
done
ORVANE_DB_PASSWORD='a;}b' "$packaging/connection-ini" --ini "$ini" --host h --user u --database d
same "ConnStr" "DRIVER={MySQL ODBC 3.51 Driver};SERVER=h;DATABASE=d;UID=u;PWD={a;}}b};" "$(value "$ini" MYSQL ConnStr)"

checking "a value that would not be read back whole is refused, and the file stays"
before=$(sha256sum "$ini")
long=$(printf 'x%.0s' {1..256})
ORVANE_DB_PASSWORD=$long refused "longer than the 255" "$packaging/connection-ini" --ini "$ini" --host h --user u --database d
refused "longer than the 255" "$packaging/connection-ini" --ini "$ini" --socket "/${long:0:220}" --user u --database d
ORVANE_DB_PASSWORD=$'a\nb' refused "control character" "$packaging/connection-ini" --ini "$ini" --host h --user u --database d
refused "cannot write in the folder" "$packaging/connection-ini" --ini /proc/nowhere/x.ini --host h --user u --database d
same "file" "$before" "$(sha256sum "$ini")"
same "leftovers" "" "$(find "$work/program" -name '.connection*')"

checking "the list of packages names each once, and all are there"
names=$(sed 's/#.*//' "$packaging/packages.txt" | xargs -n1)
same "twice" "" "$(sort <<<"$names" | uniq -d)"
same "said when nothing is missing" "" "$("$packaging/install-packages" 2>&1)"
