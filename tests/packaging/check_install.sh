#!/usr/bin/env bash
# Installs the build into a temporary prefix and checks what a desktop and a software centre
# find there: the command, the windowed program it starts, the menu entry, the icon at every
# size, the description (both checked by their validators), and one version throughout.
#
#   check_install.sh BUILD-DIR VERSION
set -euo pipefail
build=$1 version=$2
id=org.orvanta.Orvanta
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

cmake --install "$build" --prefix "$prefix" >/dev/null
desktop=$prefix/share/applications/$id.desktop
metainfo=$prefix/share/metainfo/$id.metainfo.xml
icons=$prefix/share/icons/hicolor
for file in bin/orvanta libexec/orvanta/orvanta-window libexec/orvanta/orvanta-cli; do
    [ -x "$prefix/$file" ] || fail "$file is not installed as a program"
done
for file in "$desktop" "$metainfo" "$icons/scalable/apps/$id.svg"; do
    [ -s "$file" ] || fail "${file#"$prefix"/} is not installed"
done
for size in 16 32 48 64 128 256; do
    png=$icons/${size}x${size}/apps/$id.png
    [ -s "$png" ] || fail "no ${size}x${size} icon"
    # A PNG's width and height are the big-endian words at bytes 16 and 20.
    read -r -a ihdr < <(od -An -tu1 -j16 -N8 "$png")
    width=$(((ihdr[2] << 8) + ihdr[3])) height=$(((ihdr[6] << 8) + ihdr[7]))
    [ "$width" = "$size" ] && [ "$height" = "$size" ] ||
        fail "the ${size}x${size} icon is ${width}x${height}"
done

desktop-file-validate "$desktop"
appstreamcli validate --no-net --explain "$metainfo" >/dev/null ||
    { appstreamcli validate --no-net --explain "$metainfo"; fail "the metainfo is not valid"; }
grep -qx "Exec=orvanta" "$desktop" || fail "the menu entry does not start orvanta"
grep -qx "Icon=$id" "$desktop" || fail "the menu entry's icon is not $id"
grep -q "<launchable type=\"desktop-id\">$id.desktop</launchable>" "$metainfo" ||
    fail "the metainfo does not launch $id.desktop"

# One version: the installed program, the described release and the Debian package.
[ "$("$prefix/bin/orvanta" --version)" = "Orvanta $version" ] ||
    fail "orvanta --version is not $version"
grep -q "<release version=\"$version\" date=\"[0-9-]*\"" "$metainfo" ||
    fail "the metainfo's release is not $version"
grep -q "set(CPACK_PACKAGE_VERSION \"$version\")" "$build/CPackConfig.cmake" ||
    fail "the package's version is not $version"

# The installed command finds its windowed program in libexec and shows the main window.
data=$prefix/data
QT_QPA_PLATFORM=offscreen "$prefix/bin/orvanta" --data-dir "$data" --exit-when-shown ||
    fail "the installed program did not show its window"
[ -f "$data/Help_Topics.txt" ] || fail "the installed program did not start in its data folder"
echo "installed layout, validators and version: ok"
