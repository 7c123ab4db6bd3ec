"""Opens the report in a browser: what it shows, that its filters work, and that no text runs as markup.

usage: report_browser.py LOCALIZE SAMPLES GENERATOR [PICTURE]
"""
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

from selenium import webdriver
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.ui import Select

# Far above what it takes on a machine that does nothing else, which other tests may keep this one from being.
OPENS_IN = 10.0
FILTERS_IN = 1.0


def browser(*arguments, scripts=True):
    options = webdriver.ChromeOptions()
    for argument in ("--headless=new", "--no-sandbox", "--disable-dev-shm-usage", "--window-size=1280,1000",
                     "--disable-gpu", "--hide-scrollbars", *arguments):
        options.add_argument(argument)
    if not scripts:
        options.add_experimental_option("prefs", {"profile.managed_default_content_settings.javascript": 2})
    return webdriver.Chrome(options=options, service=webdriver.ChromeService("/usr/bin/chromedriver")
                            if hasattr(webdriver, "ChromeService") else None)


def report(localize, root, page, *options):
    subprocess.run([localize, "report", "--root", root, "--output", page, *options], check=True)
    return page.as_uri()


class Page:
    def __init__(self, driver):
        self.driver = driver

    def all(self, selector):
        return self.driver.find_elements(By.CSS_SELECTOR, selector)

    def one(self, selector):
        return self.driver.find_element(By.CSS_SELECTOR, selector)

    def choose(self, form, label, value):
        for field in self.all(f"[data-for={form}] label"):
            if field.text.startswith(label):
                Select(field.find_element(By.TAG_NAME, "select")).select_by_value(value)
                return
        raise AssertionError(f"no filter {label}")

    def search(self, form, text):
        field = self.one(f"[data-for={form}] input")
        field.clear()
        field.send_keys(text)
        time.sleep(0.3)

    def count(self, form):
        return int(self.one(f"[data-for={form}] output").text.split()[0])


def expect(actual, expected):
    if actual != expected:
        raise AssertionError(f"{actual!r} is not {expected!r}")


def sample(localize, samples, directory):
    """A copy of the samples with one of each fault, and texts that look like markup."""
    tree = directory / "tree"
    shutil.copytree(samples / "tree", tree)
    hostile = "<script>document.title = \"ran\"</script><img src=x onerror=\"document.title = 1\">&amp;</noscript>"
    for culture, old, new in (
            ("de", "'Willkommen zurück, '", f"'{hostile}'"),
            ("en", "'Welcome back, '", f"'{hostile}'"),
            ("ja", "Menu.Quit", "; localize: untranslated\nMenu.Quit"),
            ("pt", "Menu.Quit", "Menu.Qiut")):
        file = tree / culture / "Locs" / "main.lt"
        text = file.read_text(encoding="utf-8-sig")
        expect(old in text, True)
        file.write_text(text.replace(old, new, 1))
    return report(localize, tree, directory / "sample.html", "--title", "<i>Texts</i>")


def test_sample(driver, uri):
    driver.get(uri)
    page = Page(driver)
    expect(driver.title, "<i>Texts</i>")
    expect(len(page.all(".matrix tr")), 9)
    keys = page.count("texts")
    expect(keys, 24)

    # Findings.
    everything = page.count("findings")
    page.choose("findings", "Rule", "missing-key")
    expect([page.count("findings"), "Menu.Quit" in page.one("ul.findings").text], [1, True])
    page.choose("findings", "Culture", "ru")
    expect(page.count("findings"), 0)
    page.choose("findings", "Rule", "")
    page.choose("findings", "Culture", "")
    page.choose("findings", "Severity", "error")
    errors = page.count("findings")
    expect(0 < errors < everything, True)

    # Texts: by words in any culture, by scope, by state.
    page.search("texts", "выбрано")
    expect([item.text.split()[0] for item in page.all("ul.texts h3")], ["Files.Selected"])
    rows = {row.find_element(By.TAG_NAME, "th").text: row for row in page.all("ul.texts tr")}
    expect([form.text for form in rows["ru"].find_elements(By.TAG_NAME, "q")],
           ["Выбрано 0 файлов", "Выбран 1 файл", "Выбрано 2 файла", "Выбрано 5 файлов", "Выбран 21 файл"])
    arabic = rows["ar"].find_element(By.TAG_NAME, "td")
    expect(driver.execute_script("return getComputedStyle(arguments[0]).direction", arabic), "rtl")
    paragraph = arabic.find_element(By.TAG_NAME, "p")
    number, text = (paragraph.find_element(By.TAG_NAME, name).rect for name in ("i", "q"))
    expect(number["x"] > text["x"], True)  # the number stands before the text, which is on its right
    page.search("texts", "")
    page.choose("texts", "Scope", "settings")
    expect(page.count("texts"), 6)
    page.choose("texts", "Scope", "")
    page.choose("texts", "State", "missing")
    expect(page.count("texts"), 1)
    page.choose("texts", "Culture", "ru")
    expect(page.count("texts"), 0)
    page.choose("texts", "State", "")
    expect({row.find_element(By.TAG_NAME, "th").text for row in page.all("ul.texts tr:not([hidden])")}, {"en", "ru"})

    # A cell leads to its texts; by keyboard, too.
    page.one('.matrix a[data-c=ja][data-s=main]').send_keys(Keys.ENTER)
    expect(page.count("texts"), 11)
    expect(driver.current_url.endswith("#texts"), True)
    page.one("body").send_keys("/")
    expect(driver.switch_to.active_element.get_attribute("type"), "search")

    # Nothing of a text is markup, and no request leaves the page.
    page.choose("texts", "Culture", "")
    page.search("texts", "onerror=")
    expect(page.count("texts"), 1)
    expect("<script>document.title" in page.one("ul.texts").text, True)
    expect([driver.title, len(page.all("main script, main img"))], ["<i>Texts</i>", 0])
    expect(driver.execute_script("return performance.getEntriesByType('resource').length"), 0)

    # Light and dark.
    ground = "return getComputedStyle(document.body).backgroundColor"
    before = driver.execute_script(ground)
    page.one("nav button").click()
    expect(driver.execute_script(ground) != before, True)


def test_without_scripts(driver, uri):
    driver.get(uri)
    page = Page(driver)
    expect([len(page.all("ul.texts > li")), page.one(".filters").is_displayed()], [24, False])
    expect("<script>document.title" in page.one("ul.texts").text, True)


def test_large(driver, uri):
    begin = time.monotonic()
    driver.get(uri)
    page = Page(driver)
    keys = page.count("texts")
    opened = time.monotonic() - begin
    # In the page, without the time that the driver takes.
    slowest = max(driver.execute_script("""
        return [['texts', 'scope', 'scope07'], ['texts', 'state', 'faulty'], ['texts', 'state', ''],
                ['texts', 'culture', 'ar'], ['texts', 'scope', ''], ['texts', 'text', '13.123'],
                ['findings', 'rule', 'untranslated'], ['findings', 'culture', 'ja']].map(([list, field, value]) => {
            const begin = performance.now();
            ({texts, findings})[list].inputs[field].value = value;
            ({texts, findings})[list].filter();
            document.body.offsetHeight;
            return (performance.now() - begin) / 1000;
        });"""))
    print(f"{keys} keys: opened in {opened:.2f} s, slowest filter {slowest:.2f} s")
    expect(page.count("texts"), 1)
    expect([opened < OPENS_IN, slowest < FILTERS_IN], [True, True])


def main():
    localize, samples, generator = sys.argv[1], pathlib.Path(sys.argv[2]), sys.argv[3]
    with tempfile.TemporaryDirectory() as name:
        directory = pathlib.Path(name)
        uri = sample(localize, samples, directory)
        plain = browser(scripts=False)
        try:
            test_without_scripts(plain, uri)
        finally:
            plain.quit()
        driver = browser()
        try:
            test_sample(driver, uri)
            tree = directory / "large"
            subprocess.run([sys.executable, generator, tree, "40", "20", "500"], check=True)
            large = report(localize, tree, directory / "large.html")
            test_large(driver, large)
            if len(sys.argv) > 4:
                driver.get(large)
                driver.save_screenshot(sys.argv[4])
        finally:
            driver.quit()


main()
