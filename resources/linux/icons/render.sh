#!/usr/bin/env bash
# Renders the icon's PNG sizes from the SVG; the PNGs are committed, so a build needs no SVG
# renderer. Run after changing the SVG (needs rsvg-convert: apt-get install librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")"
for size in 16 32 48 64 128 256; do
    rsvg-convert -w "$size" -h "$size" org.orvanta.Orvanta.svg -o "org.orvanta.Orvanta-$size.png"
done
