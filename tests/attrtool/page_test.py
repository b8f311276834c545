#!/usr/bin/env python3
"""The pages of attrtool explain --html in a headless Chromium: page_test.py ATTRTOOL BUFFERS [unittest option...]

The browser is driven through its debugging pipe: keys are pressed and the mouse is moved as a user does, in light and in
dark, and what the page then shows is compared with what explain --json says."""

import fcntl
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

TOOL = pathlib.Path(sys.argv[1])
BUFFERS = pathlib.Path(sys.argv[2])
CONTRAST = 4.5  # of text against what is behind it, WCAG 2.1, level AA

# The colours of every text on the page against their backgrounds, the worst one first.
CONTRASTS = """(() => {
  const canvas = document.createElement('canvas').getContext('2d', {willReadFrequently: true});
  const rgba = (colour) => {
    canvas.clearRect(0, 0, 1, 1);
    canvas.fillStyle = colour;
    canvas.fillRect(0, 0, 1, 1);
    return [...canvas.getImageData(0, 0, 1, 1).data];
  };
  const over = (top, under) => top.slice(0, 3).map((c, i) => c * top[3] / 255 + under[i] * (1 - top[3] / 255));
  const behind = (element) => {
    if (!element) return rgba(getComputedStyle(document.body).backgroundColor).slice(0, 3);
    const own = rgba(getComputedStyle(element).backgroundColor);
    return own[3] === 255 ? own.slice(0, 3) : over(own, behind(element.parentElement));
  };
  const light = (rgb) => rgb.map((c) => c / 255).map((c) => c <= .04045 ? c / 12.92 : ((c + .055) / 1.055) ** 2.4)
    .reduce((sum, c, i) => sum + c * [.2126, .7152, .0722][i], 0);
  const found = [];
  for (const element of document.querySelectorAll('body *')) {
    if (![...element.childNodes].some((node) => node.nodeType === 3 && node.data.trim())) continue;
    if (['SCRIPT', 'STYLE'].includes(element.tagName)) continue;
    const under = behind(element), ink = over(rgba(getComputedStyle(element).color), under);
    const [a, b] = [light(ink), light(under)].sort((x, y) => y - x);
    found.push([(a + .05) / (b + .05), element.className + ': ' + element.textContent.slice(0, 30)]);
  }
  return found.sort((x, y) => x[0] - y[0])[0];
})()"""


class Browser:
    """Chromium, spoken to over two pipes: messages are JSON, each ended by a NUL."""

    def __init__(self, program):
        self.profile = tempfile.TemporaryDirectory()
        to_browser, self.out = os.pipe()
        self.incoming, from_browser = os.pipe()

        def wire():  # to 3 and 4, which the pipes themselves may be
            ends = [fcntl.fcntl(end, fcntl.F_DUPFD, 10) for end in (to_browser, from_browser)]
            os.dup2(ends[0], 3)
            os.dup2(ends[1], 4)

        self.process = subprocess.Popen(
            [program, "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run",
             "--disable-background-networking", f"--user-data-dir={self.profile.name}", "--remote-debugging-pipe",
             "--window-size=1400,1000", "about:blank"],
            preexec_fn=wire, close_fds=False, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(to_browser)
        os.close(from_browser)
        self.rest, self.number, self.session, self.events = b"", 0, None, []
        target = self.call("Target.createTarget", url="about:blank")["targetId"]
        self.session = self.call("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
        for domain in ["Page", "Runtime", "Network", "Log"]:
            self.call(domain + ".enable")

    def close(self):
        os.close(self.out)
        os.close(self.incoming)
        self.process.terminate()
        self.process.wait(timeout=30)
        self.profile.cleanup()

    def message(self):
        while b"\0" not in self.rest:
            part = os.read(self.incoming, 1 << 16)
            if not part:
                raise RuntimeError("the browser has ended")
            self.rest += part
        text, self.rest = self.rest.split(b"\0", 1)
        return json.loads(text)

    def call(self, method, **parameters):
        self.number += 1
        request = {"id": self.number, "method": method, "params": parameters}
        if self.session:
            request["sessionId"] = self.session
        os.write(self.out, json.dumps(request).encode() + b"\0")
        while True:
            message = self.message()
            if message.get("id") != self.number:
                self.events.append(message)
            elif "error" in message:
                raise RuntimeError(f"{method}: {message['error']}")
            else:
                return message["result"]

    def open(self, path):
        self.events.clear()
        self.call("Page.navigate", url=path.as_uri())
        while not any(event.get("method") == "Page.loadEventFired" for event in self.events):
            self.events.append(self.message())

    def value(self, expression):
        result = self.call("Runtime.evaluate", expression=expression, returnByValue=True)
        if "exceptionDetails" in result:
            raise RuntimeError(result["exceptionDetails"])
        return result["result"].get("value")

    def press(self, key):
        text = {"text": key} if len(key) == 1 else {}
        self.call("Input.dispatchKeyEvent", type="keyDown", key=key, **text)
        self.call("Input.dispatchKeyEvent", type="keyUp", key=key)

    def point_at(self, selector, click=False):
        x, y = self.value(f"(() => {{ const e = document.querySelector({json.dumps(selector)}); "
                          "e.scrollIntoView({block: 'center'}); const r = e.getBoundingClientRect(); "
                          "return [r.x + r.width / 2, r.y + r.height / 2]; })()")
        self.call("Input.dispatchMouseEvent", type="mouseMoved", x=x, y=y)
        if click:
            for kind in ["mousePressed", "mouseReleased"]:
                self.call("Input.dispatchMouseEvent", type=kind, x=x, y=y, button="left", clickCount=1)

    def colours(self, scheme):
        self.call("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": scheme}])


class Page(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.browser = Browser(shutil.which("chromium"))
        cls.directory = tempfile.TemporaryDirectory()

    @classmethod
    def tearDownClass(cls):
        cls.browser.close()
        cls.directory.cleanup()

    def open(self, capture, *options):
        """Opens the capture's page; returns its fields in order, with the titles of their sections."""
        self.call("--html", capture, *options)
        page = pathlib.Path(self.directory.name, "page.html")
        page.write_bytes(self.call("--html", capture, *options))
        self.browser.open(page)
        sections = json.loads(self.call("--json", capture, *options))["sections"]
        return [{**field, "title": section["title"]} for section in sections for field in section["fields"]]

    @staticmethod
    def call(*arguments):
        return subprocess.run([TOOL, "explain", *arguments], capture_output=True, timeout=60).stdout

    def shown(self):
        return self.browser.value("document.querySelector('.detail').innerText")

    def assert_shows(self, field):
        text = self.shown()
        self.assertIn(field["title"], text)
        self.assertIn(f"{field['name']}: {field['meaning']}", text)

    def assert_no_complaints(self):
        self.browser.value("1")
        complaints = [event["params"] for event in self.browser.events
                      if event.get("method") in ("Runtime.exceptionThrown", "Log.entryAdded")]
        self.assertEqual(complaints, [])
        asked = [event["params"]["request"]["url"] for event in self.browser.events
                 if event.get("method") == "Network.requestWillBeSent"]
        self.assertEqual([url.rsplit("/", 1)[-1] for url in asked], ["page.html"], "the page fetches nothing")

    def test_keys(self):
        fields = self.open(BUFFERS / "good" / "nested")
        self.assert_shows(fields[0])
        self.browser.press("Tab")  # past nothing else: the map is the first thing to get to
        for number in range(len(fields)):
            self.assertEqual(self.browser.value("document.activeElement.id"), f"b{number}")
            self.assert_shows(fields[number])
            self.browser.press("ArrowRight")
        self.assert_shows(fields[-1])
        self.browser.press("Home")
        self.assert_shows(fields[0])
        for key, offset in [("ArrowDown", 13), ("ArrowDown", 29), ("ArrowUp", 13), ("ArrowLeft", 11), ("PageDown", 25),
                            ("PageDown", 45), ("PageUp", 25), ("End", 177)]:
            self.browser.press(key)
            self.assertEqual(self.browser.value("document.activeElement.dataset.f"),
                             str([field["offset"] for field in fields].index(offset)), f"{key} to byte {offset}")
        self.assert_no_complaints()

    def test_mouse(self):
        fields = self.open(BUFFERS / "good" / "tlv")
        for number in [1, 9, 20, 3]:
            self.browser.point_at(f".hex [data-f='{number}']")
            self.assert_shows(fields[number])
        self.browser.point_at("#f12", click=True)
        self.assert_shows(fields[12])
        self.assertEqual(self.browser.value("document.activeElement.id"), "b12")
        self.browser.point_at("h1")
        self.assert_shows(fields[12])
        self.assert_no_complaints()

    def test_what_is_refused(self):
        """It is what the page begins with, and F finds it."""
        self.open(BUFFERS / "bad" / "no-nul")
        self.assertIn("a stored text must end in NUL", self.shown())
        self.assertEqual(self.browser.value("document.querySelector('.hex .bad').textContent"), "21")
        self.browser.press("Tab")  # the links to what each reader refuses
        self.browser.press("Tab")
        self.browser.press("Tab")
        self.browser.press("Home")
        self.assertNotIn("NUL", self.shown())
        self.browser.press("f")
        self.assertIn("Refused (as a list, in place): a stored text must end in NUL", self.shown())
        self.browser.press("Home")
        self.browser.point_at(".verdicts a", click=True)
        self.assertIn("a stored text must end in NUL", self.shown())
        self.assert_no_complaints()

    def test_every_byte_is_in_one_field(self):
        for capture in ["good/nested", "good/tlv", "bad/used", "secret/no-magic"]:
            with self.subTest(capture):
                path = BUFFERS / capture
                fields = self.open(path, "--show-secrets")
                runs = self.browser.value("[...document.querySelectorAll('.hex [data-f]')]"
                                          ".map((run) => [Number(run.dataset.f), run.textContent])")
                self.assertEqual("".join(text for _, text in runs).replace(" ", ""), path.read_bytes().hex())
                for number, field in enumerate(fields):
                    text = " ".join(text for run, text in runs if run == number)
                    self.assertEqual(len(text.split()), field["size"], field)
                self.assert_no_complaints()

    def test_secrets(self):
        self.open(BUFFERS / "secret" / "flat")
        text = self.browser.value("document.documentElement.outerHTML")
        for secret in ["open-sesame", b"open".hex(" "), "wiretap", b"wire".hex(" ")]:
            self.assertNotIn(secret, text)
        self.assertIn("\\x1b[31m<script>alert('x')</script>", self.browser.value("document.body.innerText"))
        self.assertEqual(self.browser.value("document.scripts.length"), 1)
        self.assert_no_complaints()

    def test_can_be_read_by_everyone(self):
        for capture in ["secret/flat", "bad/no-nul"]:
            for scheme in ["light", "dark"]:
                with self.subTest(capture + ", " + scheme):
                    self.browser.colours(scheme)
                    self.open(BUFFERS / capture)
                    worst, where = self.browser.value(CONTRASTS)
                    self.assertGreaterEqual(worst, CONTRAST, where)
        tree = self.browser.call("Accessibility.getFullAXTree")["nodes"]
        roles = [node["role"]["value"] for node in tree if not node.get("ignored")]
        options = [node["name"]["value"] for node in tree if node["role"]["value"] == "option"]
        self.assertEqual(roles.count("listbox"), 1)
        self.assertEqual(len(options), self.browser.value("document.querySelectorAll('tr[data-f]').length"))
        self.assertIn("username (197, String), value, bytes 41 to 44: \"bob!\", no NUL at its end. Refused (as a list, "
                      "in place): a stored text must end in NUL.", options)
        ids = self.browser.value("[...document.querySelectorAll('[id]')].map((element) => element.id)")
        self.assertEqual(len(ids), len(set(ids)))
        self.assertLessEqual(self.browser.value("document.documentElement.scrollWidth - innerWidth"), 0)


if __name__ == "__main__":
    if not shutil.which("chromium"):
        print("There is no chromium here, so that the page is not looked at; scripts/setup browser installs it.")
        sys.exit(77)
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
