# SPDX-License-Identifier: MIT
"""Exports the site of some themes and uses it as visitors do, in a browser: gallery_test.py PROGRAM

AMBRELLE_SHOTS may name a folder for pictures of the pages; AMBRELLE_SITE a site that is there already."""
import functools
import http.server
import os
import shutil
import subprocess
import sys
import tempfile
import threading
import time
import unittest
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote, urlsplit

BROWSER = shutil.which("chromium")
DRIVER = shutil.which("chromedriver")
try:
    from selenium import webdriver
    from selenium.webdriver.chrome.service import Service
    from selenium.webdriver.common.by import By
    from selenium.webdriver.common.keys import Keys
    from selenium.webdriver.support.ui import WebDriverWait
except ImportError:
    webdriver = None
if not (BROWSER and DRIVER and webdriver):
    print("skipped: chromium, chromium-driver or python3-selenium is not installed")
    sys.exit(77)

PROGRAM = sys.argv.pop(1)
THEMES = ["paper", "neon", "aero", "mono"]  # two to feature, a pair, one whose accent is fixed
PATIENCE = 60  # seconds that a very busy machine may take
FLAGS = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--hide-scrollbars",
         "--disable-background-networking", "--disable-component-update", "--disable-sync"]
HEIGHTS = {360: 740, 768: 1024, 1440: 900, 2560: 1440}
FIRST_SCREEN = 600_000  # bytes
# Of the standard, and unknown to the checker.
NEWER = ('proprietary attribute "loading"', 'proprietary attribute "fetchpriority"', 'proprietary attribute "decoding"',
         'proprietary attribute "media"')

scratch = None
site = None


def setUpModule():
    global scratch, site
    scratch = Path(tempfile.mkdtemp())
    unittest.addModuleCleanup(shutil.rmtree, scratch, ignore_errors=True)
    if "AMBRELLE_SITE" in os.environ:
        site = Path(os.environ["AMBRELLE_SITE"])
        return
    site = scratch / "site"
    environment = {name: value for name, value in os.environ.items() if name != "DISPLAY"}
    environment.update(SKIN=",".join(THEMES), HOME=str(scratch), XDG_RUNTIME_DIR=str(scratch))
    done = subprocess.run([PROGRAM, "--export-site", str(site)], env=environment, capture_output=True, text=True,
                          timeout=300)
    odd = [line for line in done.stdout.splitlines() if not line.startswith("wrote ")]
    if done.returncode or done.stderr or odd:
        raise AssertionError(f"the export ended with {done.returncode}: {done.stderr} {odd}")


def pages():
    return [site / "index.html", *sorted((site / "themes").glob("*.html"))]


class Reader(HTMLParser):
    """What a page refers to, and what it is made of."""

    def __init__(self, page):
        super().__init__()
        self.references, self.ids, self.pictures = [], [], []
        self.feed(page.read_text())

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        self.references += [values[name] for name in ("href", "src") if name in values]
        self.references += [each.split()[0] for each in values.get("srcset", "").split(",") if each]
        if "id" in values:
            self.ids.append(values["id"])
        if tag == "img":
            self.pictures.append(values)


class Files(unittest.TestCase):
    def test_every_reference_leads_to_something_in_the_folder(self):
        readers = {page.resolve(): Reader(page) for page in pages()}
        count = 0
        for page, reader in readers.items():
            for reference in reader.references:
                parts = urlsplit(reference)
                self.assertEqual((parts.scheme, parts.netloc), ("", ""), f"{reference} in {page}")
                target = (page.parent / unquote(parts.path)).resolve() if parts.path else page
                self.assertTrue(target.is_file(), f"{reference} in {page}")
                self.assertTrue(target.is_relative_to(site.resolve()), f"{reference} in {page}")
                if parts.fragment:
                    self.assertIn(parts.fragment, readers[target].ids, f"{reference} in {page}")
                count += 1
        self.assertGreater(count, 100)

    def test_pictures_have_words_and_a_size(self):
        for page in pages():
            reader = Reader(page)
            self.assertEqual(len(reader.ids), len(set(reader.ids)), page)
            for picture in reader.pictures:
                self.assertIn("alt", picture, f"{picture} in {page}")
                self.assertTrue(int(picture["width"]) and int(picture["height"]), f"{picture} in {page}")

    def test_only_the_first_picture_is_loaded_at_once(self):
        for page in pages():
            eager = [picture["src"] for picture in Reader(page).pictures
                     if picture.get("loading") != "lazy" and not picture["src"].endswith("icon.svg")]
            self.assertEqual(len(eager), 1, f"{eager} in {page}")

    @unittest.skipUnless(shutil.which("tidy"), "tidy is not installed")
    def test_pages_are_well_formed(self):
        for page in pages():
            done = subprocess.run(["tidy", "-errors", "-quiet", "-utf8", "--drop-empty-elements", "no", str(page)],
                                  capture_output=True, text=True)
            wrong = [line for line in done.stderr.splitlines() if not line.endswith(NEWER)]
            self.assertEqual(wrong, [], page)


class Handler(http.server.SimpleHTTPRequestHandler):
    def copyfile(self, source, outputfile):
        content = source.read()
        self.server.sent.append((self.path, len(content)))
        outputfile.write(content)

    def log_message(self, *_):
        pass


class Browsing(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        options = webdriver.ChromeOptions()
        options.binary_location = BROWSER
        for flag in [*FLAGS, f"--user-data-dir={scratch / 'browser'}"]:
            options.add_argument(flag)
        options.set_capability("goog:loggingPrefs", {"performance": "ALL", "browser": "ALL"})
        cls.browser = webdriver.Chrome(service=Service(DRIVER), options=options)
        cls.addClassCleanup(cls.browser.quit)

    def setUp(self):
        self.scheme("light")
        self.resize(1440)
        self.browser.get_log("browser")
        self.browser.get_log("performance")

    def tearDown(self):
        self.assertEqual([entry["message"] for entry in self.browser.get_log("browser")], [], "the browser complains")
        for entry in self.browser.get_log("performance"):
            self.assertNotRegex(entry["message"], r'"url":"(?!file:|data:|about:|http://127\.0\.0\.1)[a-z]+:')

    def scheme(self, name):
        features = [{"name": "prefers-color-scheme", "value": name},
                    {"name": "prefers-reduced-motion", "value": "reduce"}]
        self.browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": features})

    def resize(self, width):
        self.browser.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
            "width": width, "height": HEIGHTS[width], "deviceScaleFactor": 1, "mobile": False})

    def open(self, name, fragment=""):
        self.browser.get("about:blank")  # the same page with another fragment would not be loaded anew
        self.browser.get((site / name).as_uri() + fragment)

    def run_script(self, script, *arguments):
        return self.browser.execute_script(script, *arguments)

    def wait(self, condition, what):
        WebDriverWait(self.browser, PATIENCE, 0.05).until(lambda _: condition(), what)

    def choose(self, name, value):
        self.browser.find_element(By.CSS_SELECTOR, f'.filter [name={name}][value="{value}"]').click()

    def shown(self):
        return self.run_script("return [...document.querySelectorAll('.card')].filter(card => card.checkVisibility())"
                               ".map(card => card.dataset.theme)")

    def sees(self, selector):
        return self.run_script("return document.querySelector(arguments[0]).checkVisibility()", selector)

    def read_to_the_end(self):
        """Scrolls down until every picture is there."""
        self.run_script("for (const image of document.images) { image.loading = 'eager' }")
        self.wait(lambda: self.run_script("return [...document.images].every(image => image.complete)"), "pictures")

    @unittest.skipIf("AMBRELLE_SITE" in os.environ, "made for some themes")
    def test_the_filter_shows_what_is_wished_for(self):
        self.open("index.html")
        self.assertEqual(self.shown(), THEMES)
        found = self.browser.find_element(By.CSS_SELECTOR, ".found output")
        for name, value, expected, told in (("tone", "light", ["paper"], "1 theme"), ("tone", "", THEMES, "4 themes"),
                                            ("group", "concept", ["paper", "neon", "aero"], "3 themes"),
                                            ("colour", "blue", ["aero"], "1 theme"), ("tone", "light", [], "0 themes")):
            self.choose(name, value)
            self.assertEqual((self.shown(), found.text), (expected, told))
        self.assertTrue(self.sees(".nothing"))
        self.assertFalse(self.sees('.group[data-group="concept"]'), "a headline of nothing")
        self.browser.find_element(By.CSS_SELECTOR, ".filter [type=reset]").click()
        self.wait(lambda: self.shown() == THEMES, "all themes")

    @unittest.skipIf("AMBRELLE_SITE" in os.environ, "made for some themes")
    def test_the_address_keeps_the_filter(self):
        self.open("index.html")
        self.choose("tone", "dark")
        self.choose("group", "minimal")
        self.assertEqual(urlsplit(self.browser.current_url).fragment, "tone=dark&group=minimal")
        self.browser.refresh()
        self.assertEqual(self.shown(), ["mono"])
        self.open("index.html", "#tone=purple&shoe=3")
        self.assertEqual(self.shown(), THEMES)

    @unittest.skipIf("AMBRELLE_SITE" in os.environ, "made for some themes")
    def test_keys_filter_too(self):
        self.open("index.html")
        self.browser.find_element(By.CSS_SELECTOR, ".filter [name=tone]").send_keys(Keys.ARROW_RIGHT)
        self.assertEqual(self.shown(), ["paper"])
        outline = "return getComputedStyle(document.activeElement.nextElementSibling).outlineStyle"
        self.assertEqual(self.run_script(outline), "solid", "where the keyboard is")

    @unittest.skipIf("AMBRELLE_SITE" in os.environ, "made for some themes")
    def test_without_scripts_it_filters_and_changes_accents(self):
        self.browser.execute_cdp_cmd("Emulation.setScriptExecutionDisabled", {"value": True})
        self.addCleanup(self.browser.execute_cdp_cmd, "Emulation.setScriptExecutionDisabled", {"value": False})
        self.open("index.html")
        self.choose("tone", "dark")
        self.assertEqual(self.shown(), ["neon", "aero", "mono"])
        self.assertFalse(self.sees(".turn"), "buttons that do nothing")
        self.swap_accents()

    def test_an_accent_swaps_the_picture_of_the_clock(self):
        self.open("themes/paper.html")
        before = self.run_script("return getComputedStyle(document.body).getPropertyValue('--accent')")
        self.swap_accents()
        after = self.run_script("return getComputedStyle(document.body).getPropertyValue('--accent')")
        self.assertNotEqual(before, after)
        self.open("themes/aero.html")
        self.assertEqual(self.browser.find_elements(By.CSS_SELECTOR, ".demo"), [])

    def swap_accents(self):
        def face():
            seen = self.run_script("return [...document.querySelectorAll('.face')].filter(face =>"
                                   "face.checkVisibility({visibilityProperty: true}))"
                                   ".map(face => [face.getAttribute('src'), face.alt])")
            return seen[0] if len(seen) == 1 else None
        swatches = self.browser.find_elements(By.CSS_SELECTOR, ".swatches input")
        faces = []
        for swatch in swatches:
            swatch.click()
            self.wait(lambda: face() and face() not in faces, "another clock")
            faces.append(face())
        self.assertGreater(len(faces), 3)
        files = self.run_script("return [...document.querySelectorAll('.face')].map(face => face.getAttribute('src'))")
        self.assertEqual([file for file, _ in faces], files)
        self.wait(lambda: self.run_script("return [...document.querySelectorAll('.face')]"
                                          ".every(face => face.naturalWidth > 0)"), "pictures of clocks")

    def test_a_card_leads_to_its_theme_and_on(self):
        self.open("index.html")
        self.browser.find_element(By.CSS_SELECTOR, '.card[data-theme="paper"] a').click()
        self.wait(lambda: "Paper" in self.browser.title, "page of the theme")
        self.browser.find_element(By.CSS_SELECTOR, '.spot[href="#widget-2"]').click()
        self.assertTrue(self.run_script("return document.querySelector('#widget-2').matches(':target')"))
        self.browser.find_element(By.LINK_TEXT, "Mono").click()
        self.wait(lambda: "Mono" in self.browser.title, "page of the partner")
        self.browser.find_element(By.CSS_SELECTOR, "[rel=prev]").click()
        self.wait(lambda: "Mono" not in self.browser.title, "page of the theme before")
        self.browser.find_element(By.CSS_SELECTOR, ".crumb a").click()
        self.wait(lambda: self.browser.current_url.endswith("index.html#themes"), "all themes")

    def test_featured_themes_turn(self):
        self.open("index.html")
        self.browser.find_element(By.CSS_SELECTOR, '[data-turn="1"]').click()
        self.wait(lambda: self.run_script("return document.querySelector('.slides').scrollLeft") > 1000, "next theme")
        self.browser.find_element(By.CSS_SELECTOR, '[data-turn="-1"]').click()
        self.wait(lambda: self.run_script("return document.querySelector('.slides').scrollLeft") < 10, "first theme")

    def test_pages_fit_every_width_and_stand_still(self):
        shots = os.environ.get("AMBRELLE_SHOTS")
        for name in ("index.html", "themes/paper.html"):
            for width in HEIGHTS:
                for scheme in ("light", "dark"):
                    with self.subTest(page=name, width=width, scheme=scheme):
                        self.scheme(scheme)
                        self.resize(width)
                        self.open(name)
                        self.run_script("window.shift = 0; new PerformanceObserver(list => { for (const entry of "
                                        "list.getEntries()) { window.shift += entry.value } })"
                                        ".observe({type: 'layout-shift', buffered: true})")
                        height = self.run_script("return document.documentElement.scrollHeight")
                        self.read_to_the_end()
                        if shots:
                            self.browser.save_screenshot(f"{shots}/{Path(name).stem}-{width}-{scheme}.png")
                        page = "const page = document.documentElement; return [page.scrollWidth, page.scrollHeight]"
                        self.assertEqual(self.run_script(page), [width, height])
                        self.assertEqual(self.run_script("return [...document.images].filter(image => "
                                                         "!image.naturalWidth).map(image => image.src)"), [])
                        self.assertLess(self.run_script("return window.shift"), 0.01)
                        ground = self.run_script("return getComputedStyle(document.body).backgroundColor")
                        light = sum(map(int, ground.strip("rgb()").split(","))) > 3 * 128
                        self.assertEqual(light, scheme == "light")

    def test_no_theme_is_wider_than_a_small_screen(self):
        self.resize(360)
        for page in pages():
            self.open(page.relative_to(site))
            self.assertEqual(self.run_script("return document.documentElement.scrollWidth"), 360, page)

    def is_quiet(self, server):
        """Whether nothing was asked for during a second."""
        before = len(server.sent)
        time.sleep(1)
        return len(server.sent) == before

    def test_the_first_screen_is_light(self):
        server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), functools.partial(Handler, directory=site))
        server.sent = []
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        threading.Thread(target=server.serve_forever, daemon=True).start()
        for width in HEIGHTS:
            with self.subTest(width=width):
                self.resize(width)
                server.sent.clear()
                self.browser.execute_cdp_cmd("Network.clearBrowserCache", {})
                self.browser.get(f"http://127.0.0.1:{server.server_port}/index.html")
                self.wait(lambda: self.run_script("return document.readyState === 'complete' && "
                                                  "document.querySelector('.slides img').naturalWidth > 0"), "page")
                self.wait(lambda: self.is_quiet(server), "last picture")
                total = sum(size for _, size in server.sent)
                print(f"{width} pixels wide: {total} bytes in {len(server.sent)} files", file=sys.stderr)
                self.assertLessEqual(total, FIRST_SCREEN, server.sent)
                self.assertGreater(total, 10_000)


unittest.main()
