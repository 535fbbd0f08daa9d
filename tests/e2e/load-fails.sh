#!/bin/bash
# What goes wrong while the main window loads is told in a box that stays until it is answered; then the
# program ends, and the user is not left logged on.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"
start_server
sql "CREATE USER reader@localhost IDENTIFIED BY 'r'; GRANT SELECT, UPDATE, DELETE ON $database.* TO reader@localhost"

# is_told WORDS: of a log-on whose main window does not load.
is_told() {
    start_program
    log_on
    box_comes "$1"
    sleep 1.5 # longer than the splash stays
    lives
    box_comes "$1"
    press Return
    until_true "the end of the program" is_gone
    wait "$program_pid" || true
    program_pid=
    same "logged on" 0 "$(sql "SELECT COUNT(*) FROM User_Status")"
}

checking "a database user who may not write"
connect_as reader r
is_told "denied to user 'reader'"
connect_as root

checking "a paper size that is no number of 16 bits"
sed -i 's/^PaperSize=.*/PaperSize=40000/' "$program/Config.ini"
is_told 溢出
sed -i 's/^PaperSize=.*/PaperSize=9/' "$program/Config.ini"

checking "a table that is not there"
sql "RENAME TABLE Menu_List TO Menu_List_away"
is_told "Menu_List' doesn't exist"
sql "RENAME TABLE Menu_List_away TO Menu_List"

checking "and with all of it mended the program opens"
open_main_window
leave_program
