#!/usr/bin/env python3
"""reports_in_browser.py <source folder> <program folder>

Opens the reviewed pages of the reports in a real browser, as they are beside a program whose path has a blank: every
picture is shown, in the colours of the theme. Status 77 where there is no Chromium.
"""

import http.client
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import urllib.parse

# The driver speaks to it through a pipe: a socket takes the name "localhost", which a bare system may not know.
SWITCHES = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
            "--disable-background-networking", "--disable-component-update", "--disable-sync",
            "--disable-dev-shm-usage", "--remote-debugging-pipe"]
WRITTEN_AT = b"/opt/my%20lab/Alembra%20uk"

# Background of the page, of the header row and text colour of the first data row.
COLOURS = {
    "colors": ["rgb(79, 104, 125)", "rgb(102, 153, 255)", "rgb(255, 255, 255)"],
    "grayscale": ["rgb(255, 255, 255)", "rgb(102, 102, 102)", "rgb(0, 0, 0)"],
}
LOOK = """
    const style = selector => getComputedStyle(document.querySelector(selector));
    return {
        colours: [style('body').backgroundColor, style('.theader').backgroundColor, style('.teven').color],
        broken: Array.from(document.images).filter(i => !i.complete || i.naturalWidth == 0).map(i => i.src),
        pictures: document.images.length
    };
"""


def call(port, method, path, body=None):
    connection = http.client.HTTPConnection("127.0.0.1", port, timeout=120)
    connection.request(method, path, None if body is None else json.dumps(body))
    value = json.load(connection.getresponse())["value"]
    if isinstance(value, dict) and "error" in value:
        raise RuntimeError(f"{value['error']}: {value['message']}")
    return value


def main(source, program):
    if not shutil.which("chromium") or not shutil.which("chromedriver"):
        print("Chromium or its driver is not installed")
        return 77
    failures = []
    pictures = 0
    driver = subprocess.Popen(["chromedriver", "--port=0"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as folder:
        linked = pathlib.Path(folder, "program folder")
        linked.symlink_to(pathlib.Path(program).resolve())
        port = next(int(found[1]) for line in driver.stdout
                    if (found := re.search(r"started successfully on port (\d+)", line)))
        options = {"args": SWITCHES + [f"--user-data-dir={folder}/profile"]}
        session = "/session/" + call(port, "POST", "/session", {
            "capabilities": {"alwaysMatch": {"goog:chromeOptions": options}}})["sessionId"]
        try:
            for page in sorted(pathlib.Path(source, "tests/reports/pages").glob("*.htm")):
                here = pathlib.Path(folder, page.name)
                here.write_bytes(page.read_bytes().replace(WRITTEN_AT, urllib.parse.quote(str(linked)).encode()))
                call(port, "POST", session + "/url", {"url": here.as_uri()})
                seen = call(port, "POST", session + "/execute/sync", {"script": LOOK, "args": []})
                colours = COLOURS["colors" if page.stem.endswith("colors") else "grayscale"]
                if (seen["colours"], seen["broken"]) != (colours, []):
                    failures.append(f"{page.name}: {seen}")
                pictures += seen["pictures"]
        finally:
            call(port, "DELETE", session)
            driver.terminate()
            driver.wait()
    print("\n".join(failures) or f"{pictures} pictures")
    return 1 if failures or pictures < 10 else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
