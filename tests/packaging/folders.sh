#!/bin/bash
# Odd places: folders with blanks, a checkout that was moved or copied, one that cannot be written, a full disk.
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"
odd=$work/果品\ 档口\ \ 一号
mkdir "$odd"
# Not the programs themselves, what the scripts do with them: each stand-in notes how it was called.
mkdir "$work/bin"
cat >"$work/bin/cmake" <<'END'
#!/bin/bash
echo "$*" >>"$CALLS"
[ "$1" != --preset ] || { mkdir -p "build/$2" && echo "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" >"build/$2/CMakeCache.txt"; }
END
chmod +x "$work/bin/cmake"
export CALLS=$work/calls

# checkout DIR: the scripts alone, which is what ./run and ./test go by before anything is built.
checkout() {
    mkdir -p "$1" && cp -r "$root/run" "$root/packaging" "$1"
    printf '#!/bin/bash\n' >"$1/packaging/install-packages"
}
configure() {
    PATH=$work/bin:$PATH "$1/packaging/configure" release
}

checking "a build folder of this place is kept"
checkout "$odd/a"
configure "$odd/a"
touch "$odd/a/build/release/kept"
same "said" "" "$(configure "$odd/a")"
[ -e "$odd/a/build/release/kept" ] || wrong "made anew"

checking "one of a checkout that was moved, or copied, is made anew, and only that"
mkdir "$odd/a/build/debug"
cp -r "$odd/a" "$odd/b"
mv "$odd/a" "$odd/c"
for place in b c; do
    configure "$odd/$place" | grep -qF "was made in $odd/a" || wrong "said nothing"
    [ ! -e "$odd/$place/build/release/kept" ] || wrong "the folder of the other place is used"
    [ -d "$odd/$place/build/debug" ] || wrong "another build folder is gone"
    same "made for" "$odd/$place" "$(sed 's/^.*=//' "$odd/$place/build/release/CMakeCache.txt")"
done

checking "server and account set in a folder with blanks, on a socket in it"
socket=$("$packaging/local-server" start "$odd/db" --fast)
same "socket" "$odd/db/mysql.sock" "$socket"
"$packaging/create-account-set" --socket "$socket" --database B --ini "$odd/p/Data/Data.ini"
same "rows" 44 "$(sql B "SELECT COUNT(*) FROM Menu_List")"
grep -qF "SOCKET=$odd/db/mysql.sock;" "$odd/p/Data/Data.ini" || wrong "$(cat "$odd/p/Data/Data.ini")"
"$packaging/make-installation" "$odd/p"
"$packaging/local-server" stop "$odd/db"
same "folders left in /tmp by it" "" "$(find /tmp -maxdepth 2 -type l -lname "$odd*" 2>/dev/null)"

if ! unshare -m true 2>/dev/null; then
    echo "folders that cannot be written need a mount: left out"
    exit 0
fi

# in_mount OPTIONS COMMAND...: with a file system of its own on $work/disk.
mkdir "$work/disk"
in_mount() {
    local options=$1
    shift
    unshare -m bash -c 'mount -t tmpfs -o "$1" none "$2" && shift 2 && "$@"' - "$options" "$work/disk" "$@"
}
cat >"$work/read-only" <<'END'
cp -r "$2" "$1/checkout" && mount -o remount,ro "$1"
"$1/checkout/run" && exit 1
"$1/checkout/packaging/local-server" start "$1/db" && exit 1
"$1/checkout/packaging/make-installation" "$1/program" && exit 1
"$1/checkout/packaging/connection-ini" --ini "$1/Data.ini" --host h --user u --database d && exit 1
find "$1" -mindepth 1 -maxdepth 1
END
cat >"$work/full" <<'END'
cp -r "$2" "$1/checkout" && head -c 50M /dev/zero >"$1/rest" 2>/dev/null
"$1/checkout/run" && exit 1
"$1/checkout/packaging/local-server" start "$1/db" && exit 1
"$1/checkout/packaging/make-installation" "$1/program" && exit 1
"$1/checkout/packaging/connection-ini" --ini "$1/Data.ini" --host h --user u --database d && exit 1
rm "$1/rest"
find "$1" -mindepth 1 -path "$1/checkout/[!b]*" -prune -o -type f -print | while read -r file; do
    cmp -s "$file" "$2/packaging/files/${file#"$1/program/"}" || echo "$file"
done
END
disk=$work/disk
rm -rf "$odd/c/build"

checking "a folder that is read-only: one sentence each, with the reason"
found=$(in_mount size=20m bash "$work/read-only" "$disk" "$odd/c" 2>"$work/said")
same "said" "run: cannot write in $disk/checkout: Read-only file system
local-server: cannot make the folder $disk/db
make-installation: cannot make the folder $disk/program
connection-ini: cannot write in the folder $disk" "$(cat "$work/said")"
same "made" "$disk/checkout" "$found"

checking "a full disk: one sentence each, with the reason, and nothing half-made"
found=$(in_mount size=20m bash "$work/full" "$disk" "$odd/c" 2>"$work/said")
same "said" "run: cannot write in $disk/checkout: the disk is full
local-server: cannot make the data files: the disk is full
make-installation: cannot write $disk/program/FILE: No space left on device
connection-ini: cannot write $disk/Data.ini: is the disk full?" "$(sed 's|/program/[^:]*:|/program/FILE:|' "$work/said")"
same "files made, but for settings laid down whole" "install.log lock" "$(xargs -n1 basename <<<"$found" | sort | xargs)"

checking "a disk too small for the data files"
refused "cannot make the data files: the disk is full" in_mount size=20m "$packaging/local-server" start "$disk/db"
