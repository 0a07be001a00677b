"""A Chromium without a window, on which a test looks at the site."""

import base64
import contextlib
from collections.abc import Iterator
from pathlib import Path

from selenium import webdriver
from selenium.webdriver.chrome.service import Service

ARGUMENTS = [
    "--headless=new",
    "--no-sandbox",  # it does not start as root otherwise
    "--disable-gpu",
    "--disable-dev-shm-usage",
    "--force-device-scale-factor=1",
    # Nothing is asked of any other machine, whatever a page wants.
    "--host-resolver-rules=MAP * ~NOTFOUND, EXCLUDE 127.0.0.1",
    "--disable-background-networking",
    "--no-first-run",
]

# The lowest contrast of any text with the ground it stands on, and that text.
CONTRAST = """
  const numbers = color => (color.match(/[0-9.]+/g) || []).map(Number);
  const light = color => {
    const [red, green, blue] = numbers(color).map(value => {
      const share = value / 255;
      return share <= 0.03928 ? share / 12.92 : ((share + 0.055) / 1.055) ** 2.4;
    });
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
  };
  const ground = element => {
    for (let at = element; at; at = at.parentElement) {
      const color = getComputedStyle(at).backgroundColor;
      if (numbers(color)[3] !== 0) return color;
    }
    return 'rgb(255, 255, 255)';
  };
  let worst = [21, ''];
  const texts = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
  while (texts.nextNode()) {
    if (!texts.currentNode.data.trim()) continue;
    const element = texts.currentNode.parentElement;
    const pair = [getComputedStyle(element).color, ground(element)].map(light);
    pair.sort((a, b) => a - b);
    const contrast = (pair[1] + 0.05) / (pair[0] + 0.05);
    if (contrast < worst[0]) worst = [contrast, texts.currentNode.data.trim()];
  }
  return worst;
"""


class Browser:
    def __init__(self, driver: webdriver.Chrome):
        self.driver = driver

    def open(self, address: str) -> None:
        self.driver.get(address)

    def look(self, width: int, height: int, scheme: str) -> None:
        """Takes on the size of a window or phone, in pixels, and the colours "light" or "dark"."""
        self.driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
            "width": width, "height": height, "deviceScaleFactor": 1, "mobile": width < 600})
        self.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {
            "features": [{"name": "prefers-color-scheme", "value": scheme}]})

    def ask(self, script: str) -> object:
        return self.driver.execute_script(script)

    def addresses(self, selector: str, attribute: str) -> list[str]:
        """The full addresses that an attribute of the page's elements holds."""
        found = self.ask(f"return [...document.querySelectorAll('{selector}')]"
                         f".map(element => element.{attribute})")
        assert isinstance(found, list)
        return found

    def lowest_contrast(self) -> tuple[float, str]:
        contrast, text = self.ask(CONTRAST)
        return contrast, text

    def complaints(self) -> list[str]:
        """What the browser complained of since it was last asked."""
        return [entry["message"] for entry in self.driver.get_log("browser")]

    def picture(self, path: Path) -> None:
        """The whole page, however long it is."""
        path.parent.mkdir(parents=True, exist_ok=True)
        answer = self.driver.execute_cdp_cmd("Page.captureScreenshot",
                                             {"captureBeyondViewport": True})
        path.write_bytes(base64.b64decode(answer["data"]))


@contextlib.contextmanager
def chromium(folder: Path) -> Iterator[Browser]:
    """Starts the browser with its profile in `folder`, and ends it."""
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    for argument in (*ARGUMENTS, f"--user-data-dir={folder}"):
        options.add_argument(argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
    try:
        yield Browser(driver)
    finally:
        driver.quit()
