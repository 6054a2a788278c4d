#!/usr/bin/env bash
# Once the package is installed, the desktop recognises a program file. Usage:
# check_mime_type.sh PACKAGES ID TYPE NAME_MIME_TYPE
. "$(dirname "$0")/support.sh"

deb=$(the_one "$1/*.deb")
id=$2
type=$3
name_mime_type=$4
dpkg-deb -x "$deb" "$work/root"
share=$work/root/usr/share
xmllint --noout "$share/mime/packages/$id.xml"
cp /usr/share/mime/packages/freedesktop.org.xml "$share/mime/packages/"
export XDG_DATA_DIRS=$share XDG_DATA_HOME=$work/home
warnings=$(update-mime-database "$share/mime" 2>&1)
[ -z "$warnings" ] || fail "$warnings"

printf 'TO A\r\nEND\r\n' >"$work/a.zrm"
printf 'TO \344\r\nEND\r\n' >"$work/A B.ZRM"
for file in "$work/a.zrm" "$work/A B.ZRM" "$share/zerimo/FLOWER.ZRM"; do
  told=$("$name_mime_type" "$file")
  [ "$told" = "$type $id.program" ] || fail "$file is known as: $told"
done
[ -f "$share/icons/hicolor/48x48/mimetypes/$id.program.png" ] || fail "the type has no icon"
grep -qE "^MimeType=(.*;)?$type;" "$share/applications/$id.desktop" || fail "no program opens the type"
grep -q '^Exec=zerimo %f$' "$share/applications/$id.desktop" || fail "the file is not handed to the program"
