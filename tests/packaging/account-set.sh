#!/bin/bash
# create-account-set: what it makes, what it refuses, and what it leaves behind when a step fails.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"
start_server
make=("$packaging/create-account-set" --socket "$socket")

databases() {
    sql mysql "SELECT GROUP_CONCAT(SCHEMA_NAME ORDER BY SCHEMA_NAME) FROM information_schema.SCHEMATA
        WHERE SCHEMA_NAME NOT IN ('mysql','information_schema','performance_schema','sys')"
}
users() {
    sql mysql "SELECT GROUP_CONCAT(User,'@',Host ORDER BY User) FROM mysql.global_priv WHERE User NOT IN ('root','mariadb.sys','PUBLIC','')"
}
fingerprint() {
    local table
    for table in $(sql "$1" "SHOW TABLES"); do sql "$1" "CHECKSUM TABLE $table; SHOW CREATE TABLE $table"; done | sha256sum
}

checking "company, department and first user are stored as given, quotes and backslashes included"
"${make[@]}" --database A --company "老'王\\果\"行" --department "一部; DROP" --first-user "A7:老板:p'w\\"
same "names" "老'王\\果\"行|一部; DROP" "$(sql A "SELECT CONCAT_WS('|',CompName,DepartName) FROM Sys_Define")"
same "user" "A7|老板|p'w\\|1" "$(sql A "SELECT CONCAT_WS('|',UserID,UserName,UserPWD,bolEdit) FROM User_List")"
same "his rights" "$(sql A "SELECT COUNT(*) FROM Menu_List")" "$(sql A "SELECT COUNT(*) FROM User_Menu WHERE UserID='A7'")"
same "others' rights" 0 "$(sql A "SELECT COUNT(*) FROM User_Menu WHERE UserID<>'A7'")"

checking "the default is Orvane_PUB with user 01"
"${make[@]}"
same "user" "01管理员1" "$(sql Orvane_PUB "SELECT CONCAT(UserID,UserName,UserPWD) FROM User_List")"
same "collation" "utf8mb4_general_ci" "$(sql mysql "SELECT DEFAULT_COLLATION_NAME FROM information_schema.SCHEMATA WHERE SCHEMA_NAME='Orvane_PUB'")"

checking "a second creation is refused and changes nothing"
before=$(fingerprint A)
refused "already holds an account set" "${make[@]}" --database A --demo --company neu --app-user till:x --ini "$work/no.ini"
same "database" "$before" "$(fingerprint A)"
same "database users" NULL "$(users)"
[ ! -e "$work/no.ini" ] || wrong "a connection file was written"
refused "already holds an account set" "${make[@]}" --database A --replace-unfinished
same "database" "$before" "$(fingerprint A)"

checking "one of its tables is enough to refuse, other tables are not"
sql mysql "CREATE DATABASE B; CREATE TABLE B.Sal_List (x INT); CREATE DATABASE C; CREATE TABLE C.Other (x INT); INSERT INTO C.Other VALUES (5)"
refused "already holds an account set" "${make[@]}" --database B
same "tables" "Sal_List" "$(sql B "SHOW TABLES")"
"${make[@]}" --database C
same "tables" 33 "$(sql C "SHOW TABLES" | wc -l)"
same "the other table" 5 "$(sql C "SELECT x FROM Other")"

checking "what a broken-off creation left is replaced on request, and only while it is empty"
sql mysql "CREATE DATABASE E; CREATE TABLE E.Sal_List (x INT); CREATE TABLE E.Other (x INT)"
refused "already holds an account set" "${make[@]}" --database E
"${make[@]}" --database E --replace-unfinished
same "tables" 33 "$(sql E "SHOW TABLES" | wc -l)"

checking "the program's database user reads and changes rows, and nothing else"
"${make[@]}" --database P_1 --app-user "till:a;b}c'\\ "
as_till() {
    MYSQL_PWD="a;b}c'\\ " mariadb --no-defaults --socket="$socket" --user=till --batch --skip-column-names "$1" -e "$2" 2>&1 || true
}
same "insert, update, select, delete" 2 "$(as_till P_1 "INSERT INTO Store VALUES ('x'); UPDATE Store SET Store='y'; SELECT COUNT(*)+1 FROM Store; DELETE FROM Store")"
for forbidden in "CREATE TABLE t (x INT)" "DROP TABLE Store" "ALTER TABLE Store ADD x INT" "CREATE INDEX i ON Store (Store)" \
    "TRUNCATE TABLE Store" "CREATE DATABASE Z" "GRANT SELECT ON P_1.* TO root@localhost"; do
    as_till P_1 "$forbidden" | grep -qi denied || wrong "allowed: $forbidden"
done
as_till A "SELECT 1 FROM Store" | grep -qi denied || wrong "he reads another account set"
sql mysql "CREATE DATABASE PX1; CREATE TABLE PX1.t (x INT)"
as_till PX1 "SELECT 1 FROM t" | grep -qi denied || wrong "the underscore of the name stands for any character in his rights"
same "database users" "till@localhost" "$(users)"

checking "passwords may come by the environment"
ORVANE_APP_PASSWORD=geheim "${make[@]}" --database P2 --app-user till2 --ini "$work/p2.ini"
same "PWD" "PWD=geheim" "$(grep '^PWD' "$work/p2.ini")"
same "rows" "$(sql P2 "SELECT COUNT(*) FROM Menu_List")" "$(MYSQL_PWD=geheim mariadb --no-defaults --socket="$socket" --user=till2 -BN P2 -e 'SELECT COUNT(*) FROM Menu_List')"
sql mysql "DROP USER till2@localhost; DROP DATABASE P2"

checking "no password stands on a command line, its own or one it starts, given by the environment"
mkdir "$work/bin"
cat >"$work/bin/mariadb" <<END
#!/bin/bash
printf '%s\\n' "\$@" >>"$work/started"
exec $(command -v mariadb) "\$@"
END
chmod +x "$work/bin/mariadb"
sql mysql "CREATE USER maker@localhost IDENTIFIED BY 'geheim-1'; GRANT ALL ON *.* TO maker@localhost WITH GRANT OPTION"
(while [ ! -e "$work/made" ]; do cat /proc/[0-9]*/cmdline 2>/dev/null | tr '\0' '\n' | grep -a geheim- >>"$work/seen"; done) 2>/dev/null &
watcher=$!
PATH=$work/bin:$PATH ORVANE_DB_PASSWORD=geheim-1 ORVANE_FIRST_PASSWORD=geheim-2 ORVANE_APP_PASSWORD=geheim-3 \
    "${make[@]}" --user maker --database P3 --first-user 01:老板 --app-user till3 --ini "$work/p3.ini"
touch "$work/made"
wait $watcher || true
[ "$(grep -c . "$work/started")" -gt 20 ] || wrong "the client was not watched: $(cat "$work/started")"
same "in what it started" "" "$(grep geheim- "$work/started" || true)"
# The watcher's own words stand on its command line too.
same "in the list of processes" "" "$(grep -v '^geheim-$' "$work/seen" || true)"
same "first user" geheim-2 "$(sql P3 "SELECT UserPWD FROM User_List")"
same "connection" PWD=geheim-3 "$(grep '^PWD' "$work/p3.ini")"
refused "put it into ORVANE_DB_PASSWORD" "${make[@]}" --password geheim-1
sql mysql "DROP USER till3@localhost, maker@localhost; DROP DATABASE P3"

checking "from elsewhere the program's user connects only where it was said"
refused "say from where till connects" "$packaging/create-account-set" --host db.lan --app-user till:x
refused "cannot connect" "$packaging/create-account-set" --host 127.0.0.1 --port 1 --app-user till:x

checking "a failure half way takes away what was made, and only that"
before_databases=$(databases) before_users=$(users)
cp -r "$root/core/schema" "$work/schema"
refuses_broken() { # SQL-FILE WORDS
    refused "$2" "${make[@]}" --schema-dir "$work/schema" --database H --app-user half:x --ini "$work/half.ini" --demo
    same "databases" "$before_databases" "$(databases)"
    same "database users" "$before_users" "$(users)"
    [ ! -e "$work/half.ini" ] || wrong "a connection file was written"
    cp "$root/core/schema/$1" "$work/schema/$1"
}
echo "CREATE TABLE Oops (x NONSENSE);" >>"$work/schema/tables.sql"
refuses_broken tables.sql "cannot fill the database H: "
echo "INSERT INTO Nowhere VALUES (1);" >>"$work/schema/seed.sql"
refuses_broken seed.sql "doesn't exist"
echo "INSERT INTO Store VALUES ('冷库');" >>"$work/schema/demo.sql"
refuses_broken demo.sql "Duplicate entry"
echo "INSERT INTO Nowhere VALUES (1);" >>"$work/schema/reports.sql"
sql mysql "CREATE DATABASE K; CREATE TABLE K.Other (x INT)"
refused "doesn't exist" "${make[@]}" --schema-dir "$work/schema" --database K
same "tables of a database that was there" "Other" "$(sql K "SHOW TABLES")"
refused "cannot write in the folder" "${make[@]}" --database H --app-user half:x --ini /proc/nowhere/half.ini
refused "255" "${make[@]}" --database H --app-user "half:$(printf 'x%.0s' {1..250})" --ini "$work/half.ini"
sql mysql "DROP DATABASE K"
same "databases" "$before_databases" "$(databases)"
same "database users" "$before_users" "$(users)"

checking "a database user that exists already is refused and kept"
refused "cannot make the database user till@localhost" "${make[@]}" --database H --app-user till:other
same "his password still works" 1 "$(as_till P_1 "SELECT 1")"
same "databases" "$before_databases" "$(databases)"

checking "a connection file that exists already is refused before anything is made"
echo kept >"$work/kept.ini"
refused "exists already" "${make[@]}" --database H --ini "$work/kept.ini"
same "file" kept "$(cat "$work/kept.ini")"
same "databases" "$before_databases" "$(databases)"

checking "two creations at once: one makes it, the other is refused"
"${make[@]}" --database R --demo >"$work/r1" 2>&1 & first=$!
"${make[@]}" --database R --demo >"$work/r2" 2>&1 & second=$!
one=0 two=0
wait $first || one=$?
wait $second || two=$?
same "one failed" 1 $((one + two))
grep -q "already holds an account set" "$work/r1" "$work/r2" || wrong "refused with other words"
same "tables" 32 "$(sql R "SHOW TABLES" | wc -l)"
same "users" 3 "$(sql R "SELECT COUNT(*) FROM User_List")"

checking "arguments are tested before the server is asked"
nowhere=("$packaging/create-account-set" --socket "$work/nowhere.sock")
refused "a database name has" "${nowhere[@]}" --database 'x`; DROP DATABASE A; --'
refused "a database name has" "${nowhere[@]}" --database ''
refused "--first-user needs" "${nowhere[@]}" --first-user 01:管理员
refused "a user id is two" "${nowhere[@]}" --first-user 001:a:b
refused "needs a password" "${nowhere[@]}" --first-user 01:a:
refused "without quote" "${nowhere[@]}" --first-user "01:o'a:b"
refused "must be 01" "${nowhere[@]}" --demo --first-user 05:a:b
refused "needs a password" "${nowhere[@]}" --app-user till
refused "a database user has" "${nowhere[@]}" --app-user "o'a:b"
refused "is no host" "${nowhere[@]}" --app-user a:b --app-host "x'y"
refused "control character" "${nowhere[@]}" --company $'a\nb'
refused "cannot read" "${nowhere[@]}" --schema-dir "$work/nowhere"
refused "unknown option" "${nowhere[@]}" --nonsense x
refused "needs a value" "${nowhere[@]}" --database
refused "--socket PATH or --host HOST" "$packaging/create-account-set"
refused "cannot connect" "${nowhere[@]}"
ORVANE_DB_PASSWORD=geheim refused "cannot connect: Access denied" "${make[@]}" --user nobody9 --database H
