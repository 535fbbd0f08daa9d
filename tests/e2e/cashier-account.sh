#!/bin/bash
# An installation of root's, given to the till's group: a cashier's account logs on, sells, keeps what was not
# printed and his settings, and changes nothing else.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"
[ -e "$program/Data/Data.ini" ] || { echo "needs root to prepare it: left out" && exit 0; }
same "owner" "root nogroup" "$(stat -c '%U %G' "$program/Data/Data.ini")"
same "account" nobody "$(id -un)"
before=$(cd "$program" && sha256sum orvane Data/*.ini)
start_server
sql "UPDATE DFN_Paper SET PrintStyle='2' WHERE PaperID='P03'; INSERT INTO Sales VALUES ('07','张三')"
book_in A 001 100 15

has_document() {
    [ "$(find "$program/单据PDF" -name '*.pdf' | wc -l)" = 1 ]
}

checking "logs on, and the name is kept"
open_main_window
same "kept name" "UserName=管理员" "$(grep ^UserName= "$program/Config.ini" | tr -d '\r')"

checking "sells; the ticket that no printer takes is a file"
choose_menu 3 1 收银开票
enter '' A-001 '' 10 '' 3.25 0.5 '' '' 07 '' ''
value_comes 37.5 "SELECT TotalAmount+0e0 FROM Sal_List"
until_true "the document" has_document
same "errors" 0 "$(sql "SELECT COUNT(*) FROM ErrInfo")"
close_window 收银开票
leave_program
same "all else of the installation" "$before" "$(cd "$program" && sha256sum orvane Data/*.ini)"
