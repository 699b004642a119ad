"""A browser with a page that reports what is dropped and pasted on it."""

import base64
import http.server
import json
import threading

from privatedesktop import wait_until

_PAGE = """<!doctype html>
<body style="margin: 0; background: #f4f4f6; font: 16px sans-serif">
<textarea id="text" style="width: 400px; height: 100px"></textarea>
<div style="height: 400px; padding: 40px">Drop files here</div>
<script>
const text = document.getElementById("text");
const tell = (what, told) => fetch("/" + what, {method: "POST", body: JSON.stringify(told)});
async function contents(files) {
  const all = [];
  for (const file of files) {
    const bytes = new Uint8Array(await file.arrayBuffer());
    let binary = "";
    for (const byte of bytes) binary += String.fromCharCode(byte);
    all.push({name: file.name, type: file.type, size: file.size, content: btoa(binary)});
  }
  return all;
}
document.ondragover = event => {
  event.preventDefault();
  event.dataTransfer.dropEffect = "copy";
};
document.ondrop = async event => {
  event.preventDefault();
  tell("drop", {files: await contents(event.dataTransfer.files)});
};
document.onpaste = async event => tell("paste", {files: await contents(event.clipboardData.files)});
text.onfocus = () => tell("focus", {isFocused: true});
text.oninput = () => tell("text", {text: text.value});
tell("ready", {isReady: true});
</script>
"""


def start_chromium(desktop, address):
    desktop.start(
        "chromium", "--no-sandbox", "--test-type", "--no-first-run", "--disable-gpu",
        "--password-store=basic",
        "--disable-background-networking", "--disable-component-update",
        f"--user-data-dir={desktop.home / 'browser'}",
        "--window-position=20,60", "--window-size=900,600",
        f"--app={address}",
    )  # fmt: skip


def start_firefox(desktop, address):
    profile = desktop.home / "browser"
    profile.mkdir()
    # The browser must not report itself, and must not ask questions at its first start.
    (profile / "user.js").write_text(
        'user_pref("datareporting.policy.dataSubmissionEnabled", false);\n'
        'user_pref("browser.aboutwelcome.enabled", false);\n'
        'user_pref("browser.shell.checkDefaultBrowser", false);\n'
        'user_pref("app.normandy.enabled", false);\n')
    if hasattr(desktop, "give_to_user"):
        desktop.give_to_user()
    desktop.start("firefox-esr", "--profile", str(profile), "--new-instance", "--kiosk", address)


class File:
    def __init__(self, told):
        self.name = told["name"]
        self.type = told["type"]
        self.size = told["size"]
        self.content = base64.b64decode(told["content"])


class WebPage:
    """The page in its own browser window, until close(); `middle` is where to drop."""

    middle = (420, 420)
    _text = (120, 130)

    def __init__(self, desktop, start_browser=start_chromium):
        self._desktop = desktop
        self._told = {}
        page = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                self.send_response(200)
                self.send_header("Content-Type", "text/html; charset=utf-8")
                self.end_headers()
                self.wfile.write(_PAGE.encode())

            def do_POST(self):
                length = int(self.headers["Content-Length"])
                page._told[self.path] = json.loads(self.rfile.read(length))
                self.send_response(204)
                self.end_headers()

            def log_message(self, *_):
                pass

        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        threading.Thread(target=self._server.serve_forever, daemon=True).start()
        start_browser(desktop, f"http://127.0.0.1:{self._server.server_port}/")
        self._wait_for("ready")

    def _wait_for(self, what):
        return wait_until(lambda: self._told.get("/" + what), f"the page tells of {what}", limit=60)

    def focus_text(self):
        """Clicks into the text field until it has the keyboard focus."""

        def is_focused():
            self._desktop.screen.pointer.click(*self._text)
            return self._told.get("/focus")

        wait_until(is_focused, "the text field has the keyboard", interval=0.3)

    def dropped(self):
        return [File(told) for told in self._wait_for("drop")["files"]]

    def pasted(self):
        return [File(told) for told in self._wait_for("paste")["files"]]

    def typed(self):
        return self._wait_for("text")["text"]

    def close(self):
        self._server.shutdown()
        self._server.server_close()
