#!/usr/bin/python3
"""Reads reports of three models in headless Chromium, as a person does: shown, searched, printed, by keyboard alone.

usage: report_in_browser.py PROJECT FOLDER. The pages and the pictures of them stay in FOLDER. The system's Python has Selenium.
"""
import base64
import json
import pathlib
import re
import subprocess
import sys
import unittest

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys

project = pathlib.Path(sys.argv[1])
folder = pathlib.Path(sys.argv[2])
shipped = project / "family/model/lumora_r880.yaml"
BARE = "FeatureSetting: {Trim: Disable}\n"


def write_other_model():
    """The shipped model with another tray dialog, a unit and a paper less, and another name for a tray."""
    text = shipped.read_text()
    for pattern, replacement in ((r"Dlg_MediaType: TYPE1 ", "Dlg_MediaType: TYPE2 "), (r".*key: OpOutTrayUnit2.*\n", ""),
                                 (r".*key: A6,.*\n", ""), (r"name: Tray 2, ", "name: Second <tray>, ")):
        text, count = re.subn(pattern, replacement, text)
        assert count > 0, pattern
    return write(text, "other.yaml")


def write(text, name):
    (folder / name).write_text(text)
    return folder / name


def make_report(name, *arguments):
    subprocess.run([project / "scripts/report", *arguments, "--out", folder / name], check=True, stdin=subprocess.DEVNULL)
    return (folder / name / "report.html").as_uri()


def open_browser():
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    for argument in ("headless=new", "no-sandbox", "disable-dev-shm-usage", "hide-scrollbars", "window-size=1440,1000"):
        options.add_argument("--" + argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
    return webdriver.Chrome(options=options, service=Service("/usr/bin/chromedriver"))


class Report(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        other = write_other_model()
        cls.pages = {"shipped": make_report("shipped", "--against", other), "other": make_report("other", other),
                     "bare": make_report("bare", write(BARE, "bare.yaml"))}
        cls.browser = open_browser()

    @classmethod
    def tearDownClass(cls):
        cls.browser.quit()

    def open(self, name):
        self.browser.get(self.pages[name])

    def run_script(self, script, *arguments):
        return self.browser.execute_script(script, *arguments)

    def texts(self, selector):
        """The texts of the elements, also of those in closed tables."""
        return self.run_script("return [...document.querySelectorAll(arguments[0])].map(e => e.textContent)", selector)

    def rows(self, selector="tbody tr", visible=False):
        """The texts of the cells of each row, with tabulators between them."""
        return self.run_script("return [...document.querySelectorAll(arguments[0])]"
                               ".filter(e => !arguments[1] || e.checkVisibility())"
                               ".map(e => [...e.cells].map(cell => cell.textContent).join('\\t'))", selector, visible)

    def visible_rows(self):
        return self.rows(visible=True)

    def keep_picture(self, name):
        self.browser.save_screenshot(str(folder / (name + ".png")))

    def test_loads_alone_and_without_a_message(self):
        for name, address in self.pages.items():
            self.browser.get_log("browser"), self.browser.get_log("performance")
            self.open(name)
            self.assertEqual(self.browser.get_log("browser"), [], name)
            messages = [json.loads(entry["message"])["message"] for entry in self.browser.get_log("performance")]
            requests = {message["params"]["request"]["url"] for message in messages
                        if message["method"] == "Network.requestWillBeSent"}
            self.assertEqual({url for url in requests if not url.startswith("data:")}, {address})
            self.assertEqual(self.run_script("return [...document.images].filter(e => !e.naturalWidth).length"), 0)

    def test_has_landmarks_headings_and_texts_for_everything(self):
        for name in self.pages:
            self.open(name)
            problems = self.run_script("""
                const all = selector => [...document.querySelectorAll(selector)];
                const problems = [];
                const check = (selector, isRight, problem) =>
                    all(selector).filter(e => !isRight(e)).forEach(e => problems.push(problem + e.outerHTML.slice(0, 90)));
                for (const one of ["main", "nav[aria-label]", "header", "search", "h1", "html[lang]", "title"])
                    if (all(one).length != 1) problems.push(one + " is not there once");
                check("img", e => e.alt.length > 20, "no alternative text: ");
                check("svg:not([aria-hidden])", e => e.getAttribute("role") == "img"
                      && e.getAttribute("aria-label").length > 20, "no alternative text: ");
                check("table", e => e.caption && e.caption.textContent, "no caption: ");
                check("th", e => ["row", "col"].includes(e.scope), "no scope: ");
                check("input", e => e.labels.length == 1 && e.labels[0].textContent.trim(), "no label: ");
                check("use, a", e => document.querySelector(e.getAttribute("href")), "leads nowhere: ");
                check("section", e => document.getElementById(e.getAttribute("aria-labelledby")), "no name: ");
                check("[id]", e => all("[id='" + e.id + "']").length == 1, "not unique: ");
                let level = 0;
                for (const heading of all("h1, h2, h3, h4, h5, h6")) {
                    if (heading.tagName[1] > level + 1) problems.push("skips a level: " + heading.textContent);
                    level = Number(heading.tagName[1]);
                }
                return problems;""")
            self.assertEqual(problems, [], name)

    def test_search_leaves_the_rows_that_match(self):
        self.open("shipped")
        body = self.browser.find_element(By.TAG_NAME, "body")
        rows = self.rows()
        open_before = len(self.visible_rows())
        for query, pattern in (("InTrayLCT", "intraylct"), ("tray 2", r"(?=.*tray)(?=.*(?<!\d)2(?!\d))")):
            expected = [row for row in rows if re.search(pattern, row.lower())]
            body.send_keys("/")  # moves to the search field
            self.browser.switch_to.active_element.send_keys(query)
            self.assertEqual(self.visible_rows(), expected)
            self.assertGreater(len(expected), 1)
            status = self.texts("#found")[0]
            tables = self.run_script("return [...document.querySelectorAll('table')].filter(e => e.checkVisibility()).length")
            self.assertEqual(status, f"{len(expected)} rows in {tables} tables")
            self.keep_picture("search")
            self.run_script("document.activeElement.blur()")
            body.send_keys(Keys.ESCAPE)
            self.assertEqual(len(self.visible_rows()), open_before)
        field = self.browser.find_element(By.ID, "search")
        field.send_keys("OutputOrder")  # the name of a table
        self.assertIn("OutOrder_FaceDown\t0\tFace down\tFACEDOWN", self.visible_rows())
        field.send_keys(" (nothing*")
        self.assertEqual((self.visible_rows(), self.texts("#found")), ([], ["No row matches"]))

    def test_works_by_keyboard(self):
        self.open("shipped")
        body = self.browser.find_element(By.TAG_NAME, "body")
        body.send_keys(Keys.TAB)
        self.assertEqual(self.browser.switch_to.active_element.get_attribute("href"), self.pages["shipped"] + "#content")
        self.assertGreaterEqual(self.run_script("return document.activeElement.getBoundingClientRect().top"), 0)
        self.browser.switch_to.active_element.send_keys(Keys.ENTER, Keys.TAB)
        self.assertEqual(self.run_script("return document.activeElement.id"), "mark-none")
        shown = "return [...document.querySelectorAll('#printer .mark')].filter(e => e.checkVisibility()).length"
        self.assertEqual(self.run_script(shown), 0)
        self.browser.switch_to.active_element.send_keys(Keys.ARROW_RIGHT, Keys.ARROW_RIGHT)  # the first paper source
        self.assertEqual(self.run_script(shown), 36)

    def test_shows_the_model(self):
        self.open("shipped")
        self.assertEqual(self.texts("h1"), ["lumora R880"])
        self.assertEqual(len(self.texts("#printer .cards:first-of-type > li")), 36)
        opacities = self.browser.execute_async_script("""
            const done = arguments[0];
            Promise.all(["use:not(.mark)", "use.mark"].map(async kind => {
                const picture = document.querySelector(document.querySelector(kind).getAttribute("href") + " image");
                const image = new Image();
                image.src = picture.getAttribute("href");
                await image.decode();
                const context = new OffscreenCanvas(image.width, image.height).getContext("2d");
                context.drawImage(image, 0, 0);
                const bytes = context.getImageData(0, 0, image.width, image.height).data;
                return new Set(bytes.filter((byte, at) => at % 4 == 3)).size * 1000 + bytes[3];
            })).then(done)""")
        self.assertEqual(opacities, [1255, 2000], "a picture is opaque, a highlight transparent around it")
        self.assertIn("Never highlighted: Auto, Tray 5.", self.texts("#printer .note"))
        self.assertEqual(self.texts("#dialogs > article > h3"), ["Dialog 128: Colour Settings",
                                                                        "Dialog 155: Paper Source Settings"])
        widths = self.run_script("return [...document.querySelectorAll('#dialogs > article:first-of-type img')]"
                                 ".map(e => e.naturalWidth)")
        self.assertEqual(len(widths), 2)
        self.assertAlmostEqual(widths[1] / widths[0], 1.5, delta=0.15)  # 144 and 96 dots per inch
        self.open("other")
        self.assertIn("Dialog 165: Paper Source Settings", self.texts("#dialogs > article > h3"))
        self.assertEqual(len(self.texts("#printer .cards:first-of-type > li")), 24)

    def test_shows_what_differs(self):
        self.open("shipped")
        rows = self.rows("#differences tbody tr")
        for row in ("Dlg_MediaType\tdiffers\t1 2", "A6\tonly here\t70\tA6\t105 x 148 mm\t262 0",
                    "InTray2\tdiffers\tTray 2 Second <tray>"):
            self.assertIn(row, rows)
        self.assertEqual(len(self.texts("#differences .cards > li")), 12)  # pictures with the missing unit
        self.assertEqual(len(self.texts("#differences .pair img")), 4)  # dialogs 155 and 165 at two resolutions
        self.open("other")
        self.assertEqual(self.texts("#differences"), [])

    def test_says_what_a_model_does_not_have(self):
        self.open("bare")
        text = self.texts("main")[0]
        for sentence in ("The model has no options that change the picture.", "No paper source or output is highlighted.",
                         "Without contents: Machine information, PaperSize, ",
                         "This model has no colour: the user-interface module should not offer the colour dialog."):
            self.assertIn(sentence, text)
        self.assertEqual(self.texts("dd")[-2:], ["123 (ColorSetting: off)", "none (Dlg_MediaType: off)"])

    def test_is_readable_light_dark_and_printed(self):
        self.open("shipped")
        for scheme in ("light", "dark"):
            self.browser.execute_cdp_cmd("Emulation.setEmulatedMedia",
                                         {"features": [{"name": "prefers-color-scheme", "value": scheme}]})
            weak = self.run_script("""
                const style = getComputedStyle(document.documentElement);
                const light = name => {
                    const hex = style.getPropertyValue("--" + name).trim();
                    const part = at => { const c = parseInt(hex.slice(at, at + 2), 16) / 255;
                                         return c <= 0.04045 ? c / 12.92 : ((c + 0.055) / 1.055) ** 2.4; };
                    return 0.2126 * part(1) + 0.7152 * part(3) + 0.0722 * part(5);
                };
                const contrast = (a, b) => (Math.max(light(a), light(b)) + 0.05) / (Math.min(light(a), light(b)) + 0.05);
                return ["text", "quiet", "accent", "removed", "added"].flatMap(ink => ["paper", "panel"]
                    .filter(ground => contrast(ink, ground) < 4.5).map(ground => ink + " on " + ground));""")
            self.assertEqual(weak, [], scheme)
            self.keep_picture(scheme)
        closed = "document.querySelectorAll('details:not([open])').length"
        before = self.run_script("return " + closed)
        self.run_script(f"addEventListener('beforeprint', () => window.closedOnPaper = {closed})")
        pdf = self.browser.execute_cdp_cmd("Page.printToPDF", {})["data"]
        (folder / "printed.pdf").write_bytes(base64.b64decode(pdf))
        self.assertEqual(self.run_script("return window.closedOnPaper"), 0)
        self.assertEqual(self.run_script("return " + closed), before)


if __name__ == "__main__":
    folder.mkdir(parents=True, exist_ok=True)
    unittest.main(argv=sys.argv[:1])
