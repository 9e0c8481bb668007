"""A headless Chromium driven over WebDriver with the standard library alone."""
import base64
import json
import re
import shutil
import subprocess
import tempfile
import time
import urllib.error
import urllib.request

FLAGS = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
         "--disable-background-networking", "--disable-component-update", "--disable-sync", "--disable-dev-shm-usage"]


class Browser:
    def __enter__(self):
        self.profile = tempfile.mkdtemp(prefix="pixmosa-navegador-")
        self.driver = subprocess.Popen(["chromedriver", "--port=0"], stdout=subprocess.PIPE, text=True)
        for line in self.driver.stdout:
            found = re.search(r"started successfully on port (\d+)", line)
            if found:
                self.base = f"http://127.0.0.1:{found[1]}"
                break
        options = {"args": FLAGS + [f"--user-data-dir={self.profile}"], "binary": shutil.which("chromium")}
        try:
            session = self.call("POST", "/session", {"capabilities": {"alwaysMatch": {"goog:chromeOptions": options}}})
        except Exception:
            self.driver.kill()  # without a session nobody else ends it
            raise
        self.base += f"/session/{session['sessionId']}"
        return self

    def __exit__(self, *_):
        try:
            self.call("DELETE", "", None)
        finally:
            self.driver.terminate()
            self.driver.wait()
            shutil.rmtree(self.profile, ignore_errors=True)

    def call(self, method, path, body):
        data = None if body is None else json.dumps(body).encode()
        request = urllib.request.Request(self.base + path, data, {"Content-Type": "application/json"}, method=method)
        opener = urllib.request.build_opener(urllib.request.ProxyHandler({}))  # the driver is on this machine
        try:
            with opener.open(request, timeout=60) as answer:
                return json.load(answer)["value"]
        except urllib.error.HTTPError as refusal:
            raise RuntimeError(json.load(refusal)["value"]["message"]) from refusal

    def open(self, path):
        self.call("POST", "/url", {"url": f"file://{path}"})

    def run(self, script):
        return self.call("POST", "/execute/sync", {"script": script, "args": []})

    def size(self, width, height):
        """The size of the window in pixels."""
        self.call("POST", "/window/rect", {"width": width, "height": height})

    def screenshot(self):
        """The bytes of a PNG of what the window shows."""
        return base64.b64decode(self.call("GET", "/screenshot", None))

    def media(self, media="", **features):
        """Shows the page as on this medium, with features such as forced_colors="active"."""
        given = [{"name": name.replace("_", "-"), "value": value} for name, value in features.items()]
        self.call("POST", "/goog/cdp/execute",
                  {"cmd": "Emulation.setEmulatedMedia", "params": {"media": media, "features": given}})

    def wait(self, script, wanted, seconds=10):
        """Waits until the script's value is `wanted`; its last value otherwise."""
        end = time.monotonic() + seconds
        while (value := self.run(script)) != wanted and time.monotonic() < end:
            time.sleep(0.02)
        return value
