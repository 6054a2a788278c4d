#!/usr/bin/env bash
# The Debian package has everything that belongs in it, where the system looks for it, and depends on what it needs.
# Usage: check_debian_content.sh PACKAGES ID SOURCES
. "$(dirname "$0")/support.sh"

deb=$(the_one "$1/*.deb")
id=$2
dpkg-deb -x "$deb" "$work/root"
cd "$work/root"

wanted=(usr/bin/zerimo usr/bin/zerimo-batch
  usr/share/zerimo/FLOWER.ZRM usr/share/zerimo/BOAT1.JPG usr/share/zerimo/ZMHELP/HELP usr/share/zerimo/ZMHELP/FD
  "usr/share/applications/$id.desktop" "usr/share/metainfo/$id.metainfo.xml" "usr/share/mime/packages/$id.xml"
  usr/share/man/man1/zerimo.1.gz usr/share/man/man1/zerimo-batch.1.gz
  usr/share/doc/zerimo/copyright usr/share/doc/zerimo/changelog.gz
  usr/share/doc/zerimo/user-guide.md usr/share/doc/zerimo/images/guide-flower.png
  "usr/share/icons/hicolor/scalable/apps/$id.svg" "usr/share/icons/hicolor/scalable/mimetypes/$id.program.svg")
for side in 16 22 24 32 48 64 128 256 512; do
  icons=usr/share/icons/hicolor/${side}x$side
  wanted+=("$icons/apps/$id.png" "$icons/mimetypes/$id.program.png")
done
for file in "${wanted[@]}"; do [ -s "$file" ] || fail "$file is missing"; done

for icon in usr/share/icons/hicolor/*/*/*.png; do
  size=$(cut -d/ -f5 <<<"$icon")
  [ "$(identify -format '%wx%h' "$icon")" = "$size" ] || fail "$icon is not $size"
  [ "$(convert "$icon" -format %k info:)" -gt 8 ] || fail "$icon shows nothing"
done

# The homepage shows the screenshots of the documentation.
screenshots=$(sed -n 's|.*<image[^>]*>.*/\(images/.*\)</image>.*|\1|p' "usr/share/metainfo/$id.metainfo.xml")
[ -n "$screenshots" ] || fail "there are no screenshots"
for screenshot in $screenshots; do
  [ "$(identify -format '%wx%h' "usr/share/doc/zerimo/$screenshot")" = 1024x768 ] || fail "$screenshot has another size"
done

links_lead_somewhere usr/share/doc/zerimo

# Every sample of the sources, and nothing left by the build.
for sample in "$3"/samples/*; do cmp "$sample" "usr/share/zerimo/$(basename "$sample")"; done
others=$(find . -type f -not -path './usr/share/*' -not -path './usr/bin/zerimo' -not -path './usr/bin/zerimo-batch')
[ -z "$others" ] || fail "these do not belong there: $others"
[ "$(find . -perm /022 -not -type l | wc -l)" -eq 0 ] || fail "others may write: $(find . -perm /022 -not -type l)"

[ "$(dpkg-deb -f "$deb" Package)" = zerimo ] || fail "the package has another name"
depends=$(dpkg-deb -f "$deb" Depends)
for library in libc6 libqt6core6 libqt6gui6 libqt6widgets6 libstdc++6 fonts-liberation; do
  grep -q "$library" <<<"$depends" || fail "$library is not asked for: $depends"
done
# No scripts run at installation: the system's own triggers see the icons and types.
[ -z "$(dpkg-deb --ctrl-tarfile "$deb" | tar -t | grep -E 'inst$|rm$' || true)" ] || fail "the package runs scripts"
