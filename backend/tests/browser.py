#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Buys tokens with a real browser, through a real nginx with packaging/nginx/quillo-backend.conf and a certificate of its
own. Usage: browser.py QUILLO_BACKEND NGINX_CONF"""

import contextlib
import http.client
import http.server
import json
import pathlib
import select
import socket
import ssl
import subprocess
import sys
import tempfile
import threading
import time
import unittest
import urllib.parse
import urllib.request

PROGRAM, EXAMPLE = sys.argv[1], pathlib.Path(sys.argv[2])
NAME = "dictation.example.org"


def free_port():
    with socket.socket() as listener:
        listener.bind(("127.0.0.1", 0))
        return listener.getsockname()[1]


class StripePage(http.server.BaseHTTPRequestHandler):
    """Stands in for Stripe's API and for the page it hosts."""

    order = {}

    def do_POST(self):
        form = self.rfile.read(int(self.headers["Content-Length"])).decode()
        StripePage.order = dict(urllib.parse.parse_qsl(form))
        self.answer(json.dumps({"url": f"http://{self.headers['Host']}/pay"}))

    def do_GET(self):
        self.answer(f"<a href='{StripePage.order.get('success_url')}'>Pay</a>")

    def answer(self, text):
        self.send_response(200)
        self.send_header("Content-Length", str(len(text)))
        self.send_header("Content-Type", "text/html")
        self.end_headers()
        self.wfile.write(text.encode())

    def log_message(self, *_):
        pass


class Browser:
    """Chromium, driven over the WebDriver protocol."""

    def __init__(self, stack, folder):
        self.driver = subprocess.Popen(["chromedriver", "--port=0"], stdout=subprocess.PIPE, text=True,
                                       stderr=subprocess.DEVNULL)
        stack.callback(self.driver.wait)
        stack.callback(self.driver.terminate)
        line = next(line for line in self.driver.stdout if "successfully on port" in line)
        self.base = f"http://127.0.0.1:{line.split()[-1].rstrip('.')}/session"
        options = {"args": ["--headless=new", "--no-sandbox", "--disable-gpu", "--no-proxy-server",
                            f"--user-data-dir={folder}/browser", f"--host-resolver-rules=MAP {NAME} 127.0.0.1"]}
        capabilities = {"acceptInsecureCerts": True, "goog:chromeOptions": options}
        self.base += "/" + self.call("", {"capabilities": {"alwaysMatch": capabilities}})["sessionId"]
        stack.callback(self.call, "", None, "DELETE")

    def call(self, path, body=None, method="POST"):
        request = urllib.request.Request(self.base + path, json.dumps(body or {}).encode(), method=method,
                                         headers={"Content-Type": "application/json"})
        opener = urllib.request.build_opener(urllib.request.ProxyHandler({}))
        with opener.open(request, timeout=60) as response:
            return json.load(response)["value"]

    def script(self, code):
        return self.call("/execute/sync", {"script": code, "args": []})

    def open(self, url):
        self.call("/url", {"url": url})

    def show(self, width, scheme):
        self.call("/goog/cdp/execute", {"cmd": "Emulation.setDeviceMetricsOverride", "params": {
            "width": width, "height": 800, "deviceScaleFactor": 1, "mobile": width < 500}})
        self.call("/goog/cdp/execute", {"cmd": "Emulation.setEmulatedMedia", "params": {
            "features": [{"name": "prefers-color-scheme", "value": scheme}]}})

    def show_as_it_is(self):
        self.call("/goog/cdp/execute", {"cmd": "Emulation.clearDeviceMetricsOverride", "params": {}})

    def click(self, selector):
        element = self.call("/element", {"using": "css selector", "value": selector})
        self.call(f"/element/{next(iter(element.values()))}/click")

    def text(self, expected=""):
        """What the page says, once it says what is expected: a click does not wait for the page it leads to."""
        deadline = time.monotonic() + 20
        while True:
            text = self.script("return document.body ? document.body.innerText : ''")
            if expected in text or time.monotonic() > deadline:
                return text


class Site:
    """The server behind nginx."""

    def __init__(self, stack, folder, *options):
        self.http, self.https = free_port(), free_port()
        self.server = subprocess.Popen(
            [PROGRAM, "--port=0", f"--database={folder}/db", "--access-log=json", "--trusted-proxies=127.0.0.1",
             f"--public-url=https://{NAME}:{self.https}", "--free-tokens=0", *options],
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        stack.callback(self.server.wait)
        stack.callback(self.server.terminate)
        port = self.server.stdout.readline().strip().rsplit(":", 1)[-1]
        self.start_proxy(stack, pathlib.Path(folder), port)

    def start_proxy(self, stack, folder, port):
        subprocess.run(["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "1", "-subj", f"/CN={NAME}",
                        "-addext", f"subjectAltName=DNS:{NAME}", "-keyout", folder / "key", "-out", folder / "pem"],
                       check=True, capture_output=True)
        lines = [line for line in EXAMPLE.read_text().splitlines() if "[::]" not in line]
        site = "\n".join(lines).replace("listen 80;", f"listen 127.0.0.1:{self.http};") \
            .replace("listen 443 ", f"listen 127.0.0.1:{self.https} ").replace("127.0.0.1:8791", f"127.0.0.1:{port}") \
            .replace(f"/etc/ssl/certs/{NAME}.pem", f"{folder}/pem") \
            .replace(f"/etc/ssl/private/{NAME}.key", f"{folder}/key")
        paths = "".join(f"{kind}_temp_path {folder}/{kind};\n" for kind in
                        ("client_body", "proxy", "fastcgi", "uwsgi", "scgi"))
        (folder / "nginx.conf").write_text(f"user root;\npid {folder}/pid;\nerror_log {folder}/errors;\nevents {{}}\n"
                                           f"http {{\naccess_log {folder}/requests;\n{paths}{site}\n}}\n")
        nginx = ["nginx", "-c", folder / "nginx.conf", "-e", folder / "errors"]
        subprocess.run(nginx, check=True, stderr=subprocess.DEVNULL)  # returns when it listens
        stack.callback(subprocess.run, nginx + ["-s", "stop"], check=True, stderr=subprocess.DEVNULL)
        self.context = ssl.create_default_context(cafile=str(folder / "pem"))
        self.context.maximum_version = ssl.TLSVersion.TLSv1_2  # nothing but replies makes its sockets readable

    def connect(self):
        return self.context.wrap_socket(socket.create_connection(("127.0.0.1", self.https)), server_hostname=NAME)

    def send(self, method, path, headers=None, body=None):
        connection = http.client.HTTPSConnection("127.0.0.1", self.https, context=self.context, timeout=60)
        connection.sock = self.connect()
        with contextlib.closing(connection):
            connection.request(method, path, body, {"Host": NAME} | (headers or {}))
            response = connection.getresponse()
            return response.status, response.read()

    def register(self):
        device = json.loads(self.send("POST", "/v1/devices", {}, '{"platform":"linux"}')[1])
        return {"Authorization": f"Bearer {device['deviceId']}.{device['secret']}"}

    def link(self, device):
        return json.loads(self.send("POST", "/v1/checkout/link", device)[1])["url"]


class BrowserTest(unittest.TestCase):
    def setUp(self):
        self.stack = contextlib.ExitStack()
        self.addCleanup(self.stack.close)
        self.folder = self.stack.enter_context(tempfile.TemporaryDirectory())

    def test_the_proxy_passes_on_what_the_server_decides(self):
        site = Site(self.stack, self.folder, "--free-tokens=9", "--transcriptions-per-device=0")
        site.register()
        self.assertEqual(site.send("GET", "/metrics")[0], 404)
        form = b'--b\r\nContent-Disposition: form-data; name="file"\r\n\r\n' + b"x" * 200_000 + b"\r\n--b--\r\n"
        headers = site.register() | {"Content-Type": "multipart/form-data; boundary=b",
                                     "X-Forwarded-For": "192.0.2.7"}
        status, body = site.send("POST", "/v1/transcribe", headers, form)
        self.assertEqual((status, json.loads(body)["error"]), (415, "unsupported_audio"))
        plain = http.client.HTTPConnection("127.0.0.1", site.http)
        with contextlib.closing(plain):
            plain.request("GET", "/v1/balance", headers={"Host": NAME})
            self.assertEqual(plain.getresponse().status, 308)
        upload = f"POST /v1/transcribe HTTP/1.1\r\nHost: {NAME}\r\nContent-Length: 9\r\n"
        upload += f"Authorization: {site.register()['Authorization']}\r\n\r\nx"
        uploads = [self.stack.enter_context(site.connect()) for _ in range(65)]
        for connection in uploads:
            connection.sendall(upload.encode())
        answered = select.select(uploads, [], [])[0]  # the others wait for the rest of their bodies
        self.assertEqual([b" 429 " in connection.recv(65536) for connection in answered], [True])
        for connection in uploads:
            connection.close()
        site.server.terminate()
        lines = [json.loads(line) for line in site.server.stderr if line.startswith("{")]
        self.assertEqual({line["address"] for line in lines}, {"127.0.0.1"})  # not what the client claimed
        self.assertIn("/v1/transcribe", {line["route"] for line in lines})

    def test_the_proxy_limits_what_an_address_asks(self):
        site = Site(self.stack, self.folder)
        request = f"GET /v1/balance HTTP/1.1\r\nHost: {NAME}\r\n".encode()
        with site.connect() as connection:
            connection.sendall((request + b"\r\n") * 400 + request + b"Connection: close\r\n\r\n")
            replies = b"".join(iter(lambda: connection.recv(65536), b""))
        self.assertGreaterEqual(replies.count(b"HTTP/1.1 401"), 100)
        self.assertGreater(replies.count(b"HTTP/1.1 429"), 0)

    def test_the_proxy_logs_no_link(self):
        site = Site(self.stack, self.folder)
        device = site.register()
        path = urllib.parse.urlsplit(site.link(device)).path
        self.assertEqual(site.send("GET", path)[0], 200)
        plain = http.client.HTTPConnection("127.0.0.1", site.http)
        with contextlib.closing(plain):
            plain.request("GET", path, headers={"Host": NAME})
            self.assertEqual(plain.getresponse().status, 308)
        site.server.terminate()
        site.server.wait()
        for failing in (path, "/v1/balance"):
            self.assertEqual(site.send("GET", failing)[0], 502)
        logs = [pathlib.Path(self.folder, name).read_text() for name in ("requests", "errors")]
        self.assertNotIn(path, "".join(logs))
        self.assertIn("/v1/balance", logs[1])  # so this is where it would be

    def test_a_page_on_any_screen_leads_to_the_payment_and_back(self):
        stripe = http.server.ThreadingHTTPServer(("127.0.0.1", 0), StripePage)
        threading.Thread(target=stripe.serve_forever, daemon=True).start()
        for name, content in (("sk", "sk_test"), ("whsec", "whsec_test")):
            pathlib.Path(self.folder, name).write_text(content)
        site = Site(self.stack, self.folder, "--checkout=stripe", f"--stripe-key-file={self.folder}/sk",
                    f"--stripe-webhook-secret-file={self.folder}/whsec",
                    f"--stripe-base-url=http://127.0.0.1:{stripe.server_address[1]}")
        browser, device = Browser(self.stack, self.folder), site.register()
        browser.open(site.link(device))
        self.assertIn("1.99 EUR", browser.text("1.99 EUR"))
        paper = {}
        for width in (360, 1280):
            for scheme in ("light", "dark"):
                browser.show(width, scheme)
                overflow = browser.script("return document.documentElement.scrollWidth - window.innerWidth")
                self.assertLessEqual(overflow, 0, (width, scheme))
                paper[scheme] = browser.script("return getComputedStyle(document.body).backgroundColor")
        self.assertNotEqual(paper["light"], paper["dark"])
        browser.show_as_it_is()
        browser.click("button")
        self.assertEqual(browser.text("Pay"), "Pay")
        browser.click("a")
        self.assertIn("as soon as the payment has arrived", browser.text("as soon as the payment has arrived"))


unittest.main(argv=sys.argv[:1], verbosity=2, warnings="ignore")
