"""A headless Chromium, driven by WebDriver (https://www.w3.org/TR/webdriver2/) over plain HTTP."""
import base64
import json
import re
import shutil
import subprocess
import tempfile
import urllib.request

ELEMENT = "element-6066-11e4-a52e-4f735466cecf"  # WebDriver's key for element references
FLAGS = ("--headless --no-sandbox --disable-gpu --disable-quic --no-first-run --disable-background-networking "
         "--disable-component-update --disable-sync --window-size=1300,1400").split()


def is_installed():
    return bool(shutil.which("chromium") and shutil.which("chromedriver"))


class Browser:
    def __init__(self, *flags):
        self.folder = tempfile.mkdtemp()
        self.opener = urllib.request.build_opener(urllib.request.ProxyHandler({}))
        self.driver = subprocess.Popen(["chromedriver", "--port=0"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        try:
            self.url = f"http://127.0.0.1:{self.read_port()}"
            options = {"binary": shutil.which("chromium"),
                       "args": [*FLAGS, *flags, f"--user-data-dir={self.folder}"]}
            wanted = {"alwaysMatch": {"goog:chromeOptions": options, "goog:loggingPrefs": {"browser": "ALL"}}}
            self.url += "/session/" + self.ask("POST", "/session", {"capabilities": wanted})["sessionId"]
        except BaseException:
            self.close()
            raise

    def read_port(self):
        for line in self.driver.stdout:
            if found := re.search(rb"successfully on port (\d+)", line):
                return int(found.group(1))
        raise RuntimeError("chromedriver did not start")

    def ask(self, method, path, body=None):
        data = None if method == "GET" else json.dumps(body or {}).encode()
        request = urllib.request.Request(self.url + path, data, {"Content-Type": "application/json"}, method=method)
        with self.opener.open(request, timeout=60) as response:
            return json.load(response)["value"]

    def open(self, path):
        self.ask("POST", "/url", {"url": "file://" + path})

    def find(self, selector):
        found = self.ask("POST", "/elements", {"using": "css selector", "value": selector})
        return [element[ELEMENT] for element in found]

    def click(self, selector):
        self.ask("POST", f"/element/{self.find(selector)[0]}/click")

    def write(self, selector, text):
        self.ask("POST", f"/element/{self.find(selector)[0]}/value", {"text": text})

    def texts(self, selector):
        """The visible text of each element."""
        return [self.ask("GET", f"/element/{element}/text") for element in self.find(selector)]

    def run(self, script):
        return self.ask("POST", "/execute/sync", {"script": script, "args": []})

    def errors(self):
        return [entry for entry in self.ask("POST", "/se/log", {"type": "browser"}) if entry["level"] == "SEVERE"]

    def screenshot(self, path):
        with open(path, "wb") as image:
            image.write(base64.b64decode(self.ask("GET", "/screenshot")))

    def close(self):
        try:
            if "/session/" in getattr(self, "url", ""):
                self.ask("DELETE", "")
        finally:
            self.driver.terminate()
            self.driver.wait(30)
            self.driver.stdout.close()
            shutil.rmtree(self.folder, ignore_errors=True)
