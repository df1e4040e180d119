#!/usr/bin/env python3
"""reports_in_browser.py <write_reports> <program folder> [folder for screenshots]

Opens every report in a real browser, in both themes and with all options on: every picture must be shown, and the
page must read as the code page that it is written in. Status 77 where there is no Chromium.
"""

import base64
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
            "--disable-dev-shm-usage", "--remote-debugging-pipe", "--window-size=1280,1600"]

# What each report shows, and how many pictures it has.
EXPECTED = {
    "properties": (["Melting point (°C)", "Reractive index", "Petroleum ether (60-80 °C)", "Image unavailable"], 196),
    "miscibility": (["Miscibility in water (wt%/%)"], 1),
    "nmr": (["1H NMR", "Acetonitrile"], 0),
    "masses": (["e/m (intensity)"], 0),
    "drying": (["Drying agent"], 0),
    "cooling": (["Temperature (°C)"], 0),
    "ir": (["Frequency (cm-1)"], 0),
    "elements": (["Melting point (°C)", "Hydrogen", "Tennessine", "Decomposition mode(s)"], 117),
    "solutions": (["E° (V)", "Riedel deHaën", "Fluorochroms (Olympus)"], 0),
    "biochemistry": (["Biomolecules - Fatty acids", "SDS-PAGE - Staining (Silver)"], 1),
    "constants": (["Universal constants", "Radiations"], 0),
}

# Background of the page, of the header row and text colour of the first data row.
COLOURS = {
    "colors": ["rgb(79, 104, 125)", "rgb(102, 153, 255)", "rgb(255, 255, 255)"],
    "grayscale": ["rgb(255, 255, 255)", "rgb(102, 102, 102)", "rgb(0, 0, 0)"],
}

LOOK = """
    const style = selector => getComputedStyle(document.querySelector(selector));
    return {
        charset: document.characterSet,
        text: document.body.innerText,
        colours: [style('body').backgroundColor, style('.theader').backgroundColor, style('.teven').color],
        pictures: document.images.length,
        broken: Array.from(document.images).filter(i => !i.complete || i.naturalWidth == 0).map(i => i.src),
        height: document.documentElement.scrollHeight
    };
"""


class Browser:
    """One Chromium behind its driver, reached over loopback."""

    def __init__(self, profile):
        self.driver = subprocess.Popen(["chromedriver", "--port=0"], stdout=subprocess.PIPE,
                                       stderr=subprocess.DEVNULL, text=True)
        self.session = None
        try:
            self.port = self.find_port()
            options = {"args": SWITCHES + [f"--user-data-dir={profile}"]}
            answer = self.call("POST", "/session", {"capabilities": {"alwaysMatch": {"goog:chromeOptions": options}}})
            self.session = "/session/" + answer["sessionId"]
        except BaseException:
            self.close()
            raise

    def find_port(self):
        for line in self.driver.stdout:
            found = re.search(r"started successfully on port (\d+)", line)
            if found:
                return int(found.group(1))
        raise RuntimeError("chromedriver did not start")

    def call(self, method, path, body=None):
        connection = http.client.HTTPConnection("127.0.0.1", self.port, timeout=120)
        connection.request(method, path, None if body is None else json.dumps(body))
        value = json.load(connection.getresponse())["value"]
        connection.close()
        if isinstance(value, dict) and "error" in value:
            raise RuntimeError(f"{value['error']}: {value['message']}")
        return value

    def look(self, file):
        self.call("POST", self.session + "/url", {"url": "file://" + urllib.parse.quote(str(file))})
        return self.call("POST", self.session + "/execute/sync", {"script": LOOK, "args": []})

    def screenshot(self, file):
        file.write_bytes(base64.b64decode(self.call("GET", self.session + "/screenshot")))

    def close(self):
        try:
            if self.session:
                self.call("DELETE", self.session)
        finally:
            self.driver.terminate()
            self.driver.wait()


def faults(name, theme, page):
    texts, pictures = EXPECTED[name]
    if page["charset"] != "windows-1252":
        yield "is read as " + page["charset"]
    if page["colours"] != COLOURS[theme]:
        yield f"has the colours {page['colours']}"
    if "\ufffd" in page["text"]:
        yield "has characters that cannot be read"
    for text in texts:
        if text not in page["text"]:
            yield f"lacks {text!r}"
    if page["pictures"] != pictures:
        yield f"has {page['pictures']} pictures instead of {pictures}"
    for source in page["broken"]:
        yield "does not show " + source


def main(write_reports, program, screenshots=None):
    if not shutil.which("chromium") or not shutil.which("chromedriver"):
        print("Chromium or its driver is not installed")
        return 77
    failed = 0
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as folder:
        here = pathlib.Path(folder)
        # A blank in the path of the program: it must come through in the paths of the pictures.
        linked = here / "program folder"
        linked.symlink_to(pathlib.Path(program).resolve())
        subprocess.run([write_reports, linked, here], check=True)
        browser = Browser(here / "profile")
        try:
            for name in EXPECTED:
                for theme in COLOURS:
                    page = browser.look(here / f"{name}-{theme}.htm")
                    if screenshots:
                        browser.screenshot(pathlib.Path(screenshots) / f"{name}-{theme}.png")
                    for fault in faults(name, theme, page):
                        print(f"{name}, {theme}: {fault}")
                        failed = 1
        finally:
            browser.close()
    return failed


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
