#!/bin/sh
# The reference pages in headless Chromium, narrow and wide, light and dark: nothing is wider than the
# window, cut off, pale or tiny, every link leads somewhere, no script fails, and the finder finds
# every function. A page with faults shows that these would be found.
# Usage: browser.sh DOCS_DIR
set -eu
docs=$1
here=$(dirname "$(realpath "$0")")
chromium=$(command -v chromium || command -v chromium-browser || true)
if [ -z "$chromium" ]; then
  echo "SKIPPED: no Chromium (Debian's package chromium)"
  exit 77
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$docs"/*.html "$docs"/*.svg "$docs"/*.css "$docs"/*.js "$here"/*.html "$work"
pages=$(cd "$work" && ls -- *.html | grep -v probe.html | paste -s -d,)
# The sandbox is not for root, nor inside of every container; these pages are our own.
for scheme in 0 1; do  # dark, light
  HOME=$work "$chromium" --headless --no-sandbox --disable-gpu --user-data-dir="$work/profile" \
    --allow-file-access-from-files --blink-settings=preferredColorScheme=$scheme \
    --virtual-time-budget=1000000 --enable-logging=stderr --dump-dom \
    "file://$work/probe.html#$pages" >"$work/dom" 2>"$work/log"
  grep -q '^DONE' "$work/dom" || { echo "no end"; tail -20 "$work/log"; exit 1; }
  sed -n 's/^.*<pre id="findings">//; /^LINK/!{/ at [0-9]*: \|^[a-z.-]*html: /p}' "$work/dom"
  sed -n 's/^\(.*<pre id="findings">\)*LINK //p' "$work/dom" >"$work/links"
  while read -r page link; do
    file=${link%%#*} place=${link#*#}
    if [ ! -e "$work/${file:-$page}" ]; then
      echo "$page: no file $link"
    elif [ "$place" != "$link" ] && ! grep -q "id=\"$place\"" "$work/${file:-$page}"; then
      echo "$page: no place $link"
    fi
  done <"$work/links"
  sed -n 's|^.*CONSOLE[^"]*"\(.*\)", source: file:.*/\([^/?]*\)?.*|\2: console: \1|p' "$work/log"
done | sort -u >"$work/findings"
cat >"$work/wanted" <<'END'
broken.html at 1280: of the other colours
broken.html at 1280: too pale: pale
broken.html at 400: 500 pixels wide
broken.html at 400: of the other colours
broken.html at 400: too pale: pale
broken.html: console: Uncaught ReferenceError: nothing is not defined
broken.html: no file nowhere.html
broken.html: no place broken.html#nowhere
END
diff "$work/wanted" "$work/findings" || { echo "< wanted, > found"; exit 1; }
echo "$(echo "$pages" | tr , '\n' | wc -l) pages, $(sort -u "$work/links" | wc -l) links"
