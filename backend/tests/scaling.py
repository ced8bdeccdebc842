#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Two servers with one PostgreSQL behind a real nginx, as docs/scaling.md describes them: 200 devices, and one of the
servers killed and started again under load. Usage: scaling.py QUILLO_BACKEND POSTGRESQL_PROGRAMS"""

import collections
import concurrent.futures
import contextlib
import http.client
import json
import pathlib
import socket
import subprocess
import sys
import tempfile
import threading

PROGRAM, POSTGRESQL = sys.argv[1:]
DEVICES, RECORDINGS, CLIENTS, PRICE = 200, 3, 12, 2


def free_port():
    with socket.socket() as listener:
        listener.bind(("127.0.0.1", 0))
        return listener.getsockname()[1]


def postgresql(stack, folder):
    script = """as="setpriv --pdeathsig QUIT"
        [ "$(id -u)" != 0 ] || { as="$as --reuid nobody --regid nogroup --clear-groups"; chown nobody "$1"; }
        cd / && $as "$0/initdb" -D "$1/data" -U quillo -A trust --no-sync >&2 &&
        exec $as "$0/postgres" -D "$1/data" -k "$1" -c listen_addresses= -c fsync=off 2>&1"""
    server = subprocess.Popen(["sh", "-c", script, POSTGRESQL, folder], stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True)
    stack.callback(server.wait)
    stack.callback(server.kill)
    next(line for line in server.stdout if "ready to accept connections" in line)
    threading.Thread(target=collections.deque, args=(server.stdout, 0), daemon=True).start()  # what it logs from now on
    return f"postgresql://quillo@/postgres?host={folder}"


class Server:
    def __init__(self, stack, database):
        self.command = [PROGRAM, f"--port={free_port()}", f"--database={database}", "--trusted-proxies=127.0.0.0/8",
                        "--engine=command", "--command=echo,hello", f"--registrations-per-hour={DEVICES}"]
        self.address = f"127.0.0.1:{self.command[1].partition('=')[2]}"
        self.start()
        stack.callback(self.kill)

    def start(self):
        self.process = subprocess.Popen(self.command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.process.stdout.readline()  # when it listens

    def kill(self):
        self.process.kill()
        self.process.wait()


def nginx(stack, folder, servers):
    port = free_port()
    upstreams = " ".join(f"server {server.address} fail_timeout=1s;" for server in servers)
    (folder / "nginx.conf").write_text(
        f"user root;\npid {folder}/pid;\nevents {{}}\nhttp {{\naccess_log off;\nclient_body_temp_path {folder}/body;\n"
        f"upstream backend {{ {upstreams} }}\nserver {{ listen 127.0.0.1:{port};\nlocation / {{\n"
        "proxy_pass http://backend; proxy_set_header X-Forwarded-For $remote_addr; proxy_next_upstream off; }\n}\n}\n")
    command = ["nginx", "-c", folder / "nginx.conf", "-e", folder / "errors"]
    subprocess.run(command, check=True, stderr=subprocess.DEVNULL)
    stack.callback(subprocess.run, command + ["-s", "stop"], check=True, stderr=subprocess.DEVNULL)
    return f"127.0.0.1:{port}"


def send(address, method, path, headers=None, body=None):
    with contextlib.closing(http.client.HTTPConnection(address, timeout=60)) as connection:
        connection.request(method, path, body, headers or {})
        response = connection.getresponse()
        return response.status, response.read()


def form(folder):
    path = folder / "recording.m4a"
    subprocess.run(["ffmpeg", "-v", "error", "-f", "lavfi", "-i", "sine=duration=1.5,tremolo=f=4:d=0.9", "-c:a", "aac", path],
                   check=True)
    return b'--b\r\nContent-Disposition: form-data; name="file"\r\n\r\n' + path.read_bytes() + b"\r\n--b--\r\n"


def main(stack):
    folder = pathlib.Path(stack.enter_context(tempfile.TemporaryDirectory(dir="/tmp")))
    folder.chmod(0o711)
    database = postgresql(stack, stack.enter_context(tempfile.TemporaryDirectory(dir="/tmp")))
    servers = [Server(stack, database), Server(stack, database)]
    address, body = nginx(stack, folder, servers), form(folder)
    devices = []
    for _ in range(DEVICES):
        device = json.loads(send(address, "POST", "/v1/devices", {}, '{"platform":"linux"}')[1])
        devices.append({"Authorization": f"Bearer {device['deviceId']}.{device['secret']}"})
    for server in servers:  # which have registered half of them each; some are allowed again as time passes
        attempts = (send(server.address, "POST", "/v1/devices", {"X-Forwarded-For": "127.0.0.1"}, '{"platform":"linux"}')
                    for _ in range(20))
        assert any(status == 429 for status, _ in attempts), "the limit is not the same for both"
    delivered, unheard, killed, mended = collections.Counter(), collections.Counter(), threading.Event(), threading.Event()

    def dictate(index):
        for _ in range(RECORDINGS):
            while True:
                with contextlib.suppress(OSError, http.client.HTTPException):
                    headers = devices[index] | {"Content-Type": "multipart/form-data; boundary=b"}
                    status, _ = send(address, "POST", "/v1/transcribe", headers, body)
                    if status == 200:
                        delivered[index] += 1
                        break
                    assert status in {502, 503, 504}, status
                    unheard[index] += status == 502  # the killed server may have sent a reply that nginx did not get

    def fail():
        killed.wait()
        servers[0].kill()
        mended.wait()
        servers[0].start()

    failure = threading.Thread(target=fail)
    failure.start()
    with concurrent.futures.ThreadPoolExecutor(CLIENTS) as clients:
        for count, done in enumerate(concurrent.futures.as_completed(clients.submit(dictate, i) for i in range(DEVICES))):
            done.result()
            killed.set() if count >= DEVICES / 4 else None
            mended.set() if count >= DEVICES / 2 else None
    failure.join()
    lost = 0
    for index, device in enumerate(devices):
        charged = 3600 - json.loads(send(address, "GET", "/v1/balance", device)[1])["balance"]
        assert charged <= PRICE * (delivered[index] + unheard[index]), (index, charged, delivered[index], unheard[index])
        lost += max(0, PRICE * delivered[index] - charged)
    assert lost <= PRICE * CLIENTS, lost  # what was under way when the server was killed
    subprocess.run([PROGRAM, "check", f"--database={database}"], check=True)
    print(f"{sum(delivered.values())} transcripts, {lost} tokens not charged")


with contextlib.ExitStack() as context:
    main(context)
