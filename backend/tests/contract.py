#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds the running server to backend/api/openapi.yaml: every reply is described there, and every description is met by a
reply. Usage: contract.py QUILLO_BACKEND OPENAPI_YAML"""

import hashlib
import hmac
import http.client
import http.server
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import threading
import time

import jsonschema
import yaml

PROGRAM, DOCUMENT = sys.argv[1], yaml.safe_load(pathlib.Path(sys.argv[2]).read_text())
MULTIPART = {"Content-Type": "multipart/form-data; boundary=b"}
failures, seen = [], set()


def expanded(node):
    """The node with what its references name in their place."""
    if isinstance(node, dict) and "$ref" in node:
        target = DOCUMENT
        for step in node["$ref"].removeprefix("#/").split("/"):
            target = target[step]
        return expanded(target)
    if isinstance(node, dict):
        return {key: expanded(value) for key, value in node.items()}
    return [expanded(value) for value in node] if isinstance(node, list) else node


PATHS = expanded(DOCUMENT["paths"])
# While the engine loads, which may be over before it can be asked.
RARE = {("get", "/healthz", "503")}
# What "default" describes.
DEFAULTS = {405, 500, 503}


def operation_of(method, path):
    templates = [path] if path in PATHS else PATHS
    for template in templates:
        if re.fullmatch(re.sub(r"\{\w+\}", "[^/]+", template), path):
            return template, PATHS[template].get(method.lower())
    raise KeyError(path)


def validate(value, schema, what):
    for error in jsonschema.Draft202012Validator(schema).iter_errors(value):
        failures.append(f"{what}: {error.message}")


def check(method, path, status, headers, body):
    template, operation = operation_of(method, path)
    what = f"{method} {template} {status}"
    if not operation:  # a method that the path does not have is refused as described for the others
        operation = next(value for key, value in PATHS[template].items() if key != "parameters")
        if status != 405 or "Allow" not in headers:
            failures.append(f"{what} is not 405 with the methods that are allowed")
    described = str(status) if str(status) in operation["responses"] else "default"
    if described == "default" and status not in DEFAULTS:
        failures.append(f"{what} is not described")
        return
    seen.add((method.lower(), template, described))
    response = operation["responses"][described]
    for name, header in response.get("headers", {}).items():
        if name in headers:
            validate(headers[name], header["schema"], f"{what} {name}")
        elif header.get("required"):
            failures.append(f"{what} has no {name}")
    for kind, content in response.get("content", {}).items():
        if not headers.get("Content-Type", "").startswith(kind):
            failures.append(f"{what} is {headers.get('Content-Type')}, not {kind}")
        elif "schema" in content:
            validate(json.loads(body), content["schema"], what)


class Upstream(http.server.BaseHTTPRequestHandler):
    """Stands in for the transcription server and for Stripe."""

    status, reply = 200, {"text": "hello", "url": "https://pay.example/1"}
    arrived, proceed = threading.Event(), threading.Event()
    orders = []

    def do_POST(self):
        body = self.rfile.read(int(self.headers["Content-Length"])) if "Content-Length" in self.headers else b""
        Upstream.orders.append(body.decode(errors="replace"))
        Upstream.arrived.set()
        Upstream.proceed.wait(30)
        payload = json.dumps(Upstream.reply).encode()
        self.send_response(Upstream.status)
        self.send_header("Content-Length", str(len(payload)))
        self.end_headers()
        self.wfile.write(payload)

    def log_message(self, *_):
        pass


class Server:
    def __init__(self, folder, *options):
        self.process = subprocess.Popen([PROGRAM, "--port=0", "--database", f"{folder}/db", *options],
                                        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.address = self.process.stdout.readline().strip().rsplit("/", 1)[-1]

    def send(self, method, path, headers=None, body=None):
        connection = http.client.HTTPConnection(self.address, timeout=60)
        try:
            connection.request(method, path, body, headers or {})
            response = connection.getresponse()
            content = response.read()
        finally:
            connection.close()
        check(method, path, response.status, dict(response.getheaders()), content)
        return response.status, content

    def register(self):
        device = json.loads(self.send("POST", "/v1/devices", {}, '{"platform":"linux"}')[1])
        return {"Authorization": f"Bearer {device['deviceId']}.{device['secret']}"}

    def link(self, device):
        return "/checkout/" + json.loads(self.send("POST", "/v1/checkout/link", device)[1])["url"].rsplit("/", 1)[-1]

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()


def form(file):
    head = b'--b\r\nContent-Disposition: form-data; name="file"; filename="a.m4a"\r\nContent-Type: audio/mp4\r\n\r\n'
    return head + file + b"\r\n--b--\r\n"


def recording(folder):
    path = f"{folder}/recording.m4a"
    subprocess.run(["ffmpeg", "-v", "error", "-y", "-f", "lavfi", "-i", "sine=duration=1.5,tremolo=f=4:d=0.9", "-c:a", "aac",
                    path], check=True)
    return pathlib.Path(path).read_bytes()


def exercise_selling_nothing(folder):
    with Server(folder, "--checkout=none", "--registrations-per-hour=1", "--free-tokens=1") as server:
        device = server.register()
        server.send("POST", "/v1/devices", {}, '{"platform":"linux"}')
        server.send("POST", "/v1/checkout/link", device)
        server.send("POST", "/v1/transcribe", device | MULTIPART, form(recording(folder)))


def exercise_transcription(server, folder):
    device, file = server.register(), recording(folder)
    upload = ("POST", "/v1/transcribe", device | MULTIPART, form(file))
    Upstream.proceed.clear()
    waiting = threading.Thread(target=server.send, args=upload)
    waiting.start()
    Upstream.arrived.wait(30)
    server.send(*upload)  # the one place is taken
    Upstream.proceed.set()
    waiting.join()
    for body in (b"no form", form(b"no audio")):
        server.send("POST", "/v1/transcribe", device | MULTIPART, body)
    server.send("POST", "/v1/transcribe", {}, b"")
    server.send("POST", "/v1/transcribe", device | {"Content-Length": "99999999"})
    server.send("GET", "/v1/balance", device)
    server.send("GET", "/v1/balance")
    server.send("PUT", "/v1/balance", device)
    server.send("POST", "/v1/devices", {}, "{")
    server.send("POST", "/v1/devices", {"Content-Length": "99999"})


def exercise_checkout(server):
    device = server.register()
    server.send("POST", "/v1/checkout/link")
    link = server.link(device)
    server.send("GET", link)
    server.send("POST", link, {}, "pack=9")
    Upstream.status = 500
    server.send("POST", link, {}, "pack=0")
    Upstream.status = 200
    server.send("POST", link, {}, "pack=0")
    server.send("POST", link, {}, "pack=0")
    server.send("GET", link)
    server.send("GET", "/checkout/paid")
    server.send("GET", "/checkout/cancelled")
    event, now = b'{"id":"evt_1","type":"x"}', int(time.time())
    code = hmac.new(b"whsec", b"%d.%s" % (now, event), hashlib.sha256).hexdigest()
    server.send("POST", "/webhooks/stripe", {"Stripe-Signature": f"t={now},v1={code}"}, event)
    server.send("POST", "/webhooks/stripe", {}, event)


def main():
    upstream = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Upstream)
    threading.Thread(target=upstream.serve_forever, daemon=True).start()
    url = f"http://127.0.0.1:{upstream.server_address[1]}"
    Upstream.proceed.set()
    with tempfile.TemporaryDirectory() as folder:
        exercise_selling_nothing(folder)
        for name, content in (("key", "sk"), ("secret", "whsec")):
            pathlib.Path(folder, name).write_text(content)
        with Server(folder, "--checkout=manual") as server:
            server.send("GET", "/healthz")
            server.send("POST", server.link(server.register()), {}, "pack=0")
        with Server(folder, "--engine=openai", f"--openai-base-url={url}", "--engine-queue=1", "--checkout=stripe",
                    "--public-url=https://quillo.test",
                    f"--stripe-base-url={url}", f"--stripe-key-file={folder}/key",
                    f"--stripe-webhook-secret-file={folder}/secret") as server:
            exercise_transcription(server, folder)
            exercise_checkout(server)
            while server.send("GET", "/healthz")[0] != 200:
                pass
            server.send("GET", "/metrics")
    described = {(method, path, status) for path, operations in PATHS.items()
                 for method, operation in operations.items() if method != "parameters"
                 for status in operation["responses"] if status != "default"}
    for missing in sorted(described - seen - RARE):
        failures.append("no reply was " + " ".join(missing))
    print("\n".join(failures) or f"{len(seen)} kinds of reply are as described")
    return 1 if failures else 0


sys.exit(main())
