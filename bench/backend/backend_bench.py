#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Measures quillo-backend, one figure per line of JSON. Usage: backend_bench.py BUILD_FOLDER_OF_BACKEND"""

import contextlib
import glob
import http.client
import json
import os
import pathlib
import pwd
import re
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

BUILD = pathlib.Path(sys.argv[1])
PROGRAM, BENCH_SERVER = BUILD / "quillo-backend", BUILD.parent / "bench/backend/backend_bench_server"
SECONDS = 5
UNITS = {"us": 0.001, "ms": 1, "s": 1000}


def tell(name, unit, value, reference=None, limit=None, limit_on="ratio"):
    ratio = value / reference if reference else None
    print(json.dumps({"name": name, "unit": unit, "value": value, "reference": reference, "ratio": ratio,
                      "limit": limit, "limitOn": limit_on}), flush=True)


class Server:
    def __init__(self, stack, program, database, *options):
        self.process = subprocess.Popen([program, "--port=0", f"--database={database}", "--registrations-per-hour=0",
                                         "--free-tokens=1000000000", "--connections-per-address=0",
                                         "--transcriptions-per-device=0", "--decoding-per-device=86400", *options],
                                        stdout=subprocess.PIPE, text=True)
        stack.callback(self.stop)
        self.address = self.process.stdout.readline().strip().rsplit("/", 1)[-1]

    def stop(self):
        if self.process.poll() is None:
            self.process.terminate()
            self.process.wait()

    def send(self, method, path, body=None, headers=None):
        connection = http.client.HTTPConnection(self.address)
        with contextlib.closing(connection):
            connection.request(method, path, body, headers or {})
            return json.loads(connection.getresponse().read())

    def register(self):
        device = self.send("POST", "/v1/devices", '{"platform":"linux"}')
        return f"Bearer {device['deviceId']}.{device['secret']}"

    def kibibytes(self, field):
        status = pathlib.Path(f"/proc/{self.process.pid}/status").read_text()
        return int(re.search(rf"{field}:\s+(\d+)", status)[1])


def wrk(url, connections, *options):
    """Requests per second, the 99th percentile in ms, and how many failed."""
    output = subprocess.run(["wrk", "-t2", f"-c{connections}", f"-d{SECONDS}s", "--latency", "--timeout=30s", *options,
                             url], capture_output=True, text=True, check=True).stdout
    rate = float(re.search(r"Requests/sec:\s+([\d.]+)", output)[1])
    number, unit = re.search(r"99%\s+([\d.]+)(us|ms|s)", output).groups()
    failed = sum(int(n) for n in re.findall(r"Non-2xx or 3xx responses: (\d+)", output))
    failed += sum(sum(map(int, re.findall(r"\d+", line))) for line in re.findall(r"Socket errors: .*", output))
    return rate, float(number) * UNITS[unit], failed


def nginx(stack, folder, content):
    root = folder / "static"
    root.mkdir()
    (root / "file").write_bytes(content)
    port = 18799
    (folder / "nginx.conf").write_text(
        f"user root;\nworker_processes 1;\npid {folder}/pid;\nevents {{}}\nhttp {{\naccess_log off;\n"
        f"keepalive_requests 1000000;\nserver {{ listen 127.0.0.1:{port}; root {root}; }}\n}}\n")
    command = ["nginx", "-c", folder / "nginx.conf", "-e", folder / "errors"]
    subprocess.run(command, check=True)
    stack.callback(subprocess.run, command + ["-s", "stop"], check=True)
    return f"http://127.0.0.1:{port}/file"


def postgresql(stack, folder):
    programs = pathlib.Path(sorted(glob.glob("/usr/lib/postgresql/*/bin"))[-1])
    home = folder / "postgresql"
    home.mkdir()
    as_other = {}
    if os.geteuid() == 0:  # which it refuses to run as
        nobody = pwd.getpwnam("nobody")
        as_other = {"user": nobody.pw_uid, "group": nobody.pw_gid, "extra_groups": []}
        os.chown(home, nobody.pw_uid, nobody.pw_gid)
        folder.chmod(0o711)
    subprocess.run([programs / "initdb", "-D", home / "data", "-U", "quillo", "-A", "trust"], check=True, cwd="/",
                   stdout=subprocess.DEVNULL, **as_other)
    server = subprocess.Popen([programs / "postgres", "-D", home / "data", "-k", home, "-c", "listen_addresses="],
                              stderr=subprocess.PIPE, text=True, cwd="/", **as_other)
    stack.callback(server.wait)
    stack.callback(server.send_signal, signal.SIGINT)
    for line in server.stderr:
        if "ready to accept connections" in line:
            break
    return f"postgresql://quillo@/postgres?host={home}"


def recording(folder):
    path = folder / "recording.m4a"
    subprocess.run(["ffmpeg", "-v", "error", "-f", "lavfi", "-i", "anoisesrc=duration=10,tremolo=f=4:d=0.9", "-ac", "1",
                    "-ar", "44100", "-c:a", "aac", "-b:a", "64k", path], check=True)
    head = b'--b\r\nContent-Disposition: form-data; name="file"; filename="a.m4a"\r\n\r\n'
    return head + path.read_bytes() + b"\r\n--b--\r\n"


def measure_balance(stack, database, name, reference):
    server = Server(stack, BENCH_SERVER, database)
    header = "Authorization: " + server.register()
    rate, p99, failed = wrk(f"http://{server.address}/v1/balance", 64, "-H", header)
    server.stop()
    if failed:
        raise RuntimeError(f"{failed} balance requests failed")
    tell(f"balance requests, 64 connections, {name}; against nginx serving as many bytes", "1/s", rate, reference[0])
    tell(f"the same, 99th percentile, {name}", "ms", p99, reference[1])


def measure_uploads(stack, folder, database, name, body):
    server = Server(stack, BENCH_SERVER, database, "--engine-queue=256")
    script = folder / "upload.lua"
    (folder / "body").write_bytes(body)
    script.write_text(f'wrk.method = "POST"\nwrk.body = io.open("{folder}/body", "rb"):read("*a")\n'
                      f'wrk.headers["Authorization"] = "{server.register()}"\n'
                      'wrk.headers["Content-Type"] = "multipart/form-data; boundary=b"\n')
    before = server.kibibytes("VmRSS")
    rate, p99, failed = wrk(f"http://{server.address}/v1/transcribe", 200, "-s", script)
    each = (server.kibibytes("VmHWM") - before) * 1024 / 200
    server.stop()
    tell(f"uploads of 10 s at a time 200, {name}: lost", "", failed, limit=0, limit_on="value")
    tell(f"the same: transcripts, {name}", "1/s", rate)
    tell(f"the same: 99th percentile, {name}", "ms", p99)
    tell(f"the same: peak memory per upload, against its body, {name}", "KiB", each / 1024, len(body) / 1024, limit=2)


def measure_start(stack, folder):
    times = []
    for _ in range(9):
        started = time.monotonic()
        server = Server(stack, PROGRAM, folder / "start.db")
        times.append((time.monotonic() - started) * 1000)
        server.stop()
    tell("server start to listening", "ms", statistics.median(times))
    for engine in ("openai", "pocketsphinx"):
        server = Server(stack, PROGRAM, folder / "start.db", f"--engine={engine}")
        while server.send("GET", "/healthz")["status"] != "ok":
            time.sleep(0.05)
        tell(f"idle, engine {engine}: resident memory", "MiB", server.kibibytes("VmRSS") / 1024)
        server.stop()


def words_wrong(said, heard):
    row = list(range(len(heard) + 1))
    for i, word in enumerate(said, 1):
        before, row[0] = row[0], i
        for j, other in enumerate(heard, 1):
            before, row[j] = row[j], min(row[j] + 1, row[j - 1] + 1, before + (word != other))
    return row[-1]


def measure_engine(folder):
    """The embedded engine on a book read aloud, from pocketsphinx-testdata."""
    data = pathlib.Path("/usr/share/pocketsphinx/test/data/librivox")
    wrong = count = 0
    taken = spoken = 0.0
    for line in (data / "transcription").read_text().splitlines():
        said, name = re.fullmatch(r"<s> (.*) </s> \((.*)\)", line).groups()
        subprocess.run(["ffmpeg", "-v", "error", "-y", "-i", data / f"{name}.wav", "-ac", "1", "-ar", "44100", "-c:a",
                        "aac", "-b:a", "64k", folder / "said.m4a"], check=True)
        result = subprocess.run([PROGRAM, "engine", "test", folder / "said.m4a"], capture_output=True, text=True, check=True)
        wrong += words_wrong(said.split(), result.stdout.split())
        count += len(said.split())
        times = re.match(r"([\d.]+) s for ([\d.]+) s", result.stderr)
        taken, spoken = taken + float(times[1]), spoken + float(times[2])
    tell(f"embedded engine, a book read aloud, {count} words: wrong", "%", 100 * wrong / count)
    tell("the same: real-time factor", "", taken / spoken)


def main():
    missing = [name for name in ("wrk", "nginx", "ffmpeg") if not shutil.which(name)]
    if missing:
        sys.exit(f"missing: {', '.join(missing)}")
    with contextlib.ExitStack() as stack:
        folder = pathlib.Path(stack.enter_context(tempfile.TemporaryDirectory()))
        url = nginx(stack, folder, b'{"balance":1000000000,"unmetered":false}')
        reference = wrk(url, 64)
        database, body = postgresql(stack, folder), recording(folder)
        for location, name in ((folder / "balance.db", "SQLite"), (database, "PostgreSQL")):
            measure_balance(stack, location, name, reference)
            measure_uploads(stack, folder, location, name, body)
        measure_start(stack, folder)
        measure_engine(folder)


main()
