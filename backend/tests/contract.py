#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds what the tests have exchanged with the server to backend/api/openapi.yaml: every reply is described there, and
every description is met by a reply. Usage: contract.py OPENAPI_YAML EXCHANGES"""

import json
import pathlib
import re
import sys

import jsonschema
import yaml

DOCUMENT = yaml.safe_load(pathlib.Path(sys.argv[1]).read_text())
failures, seen = set(), set()


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
FAILURE = expanded(DOCUMENT["components"]["responses"]["Failure"])
# What its description names.
FAILURES = {400, 404, 405, 429, 500, 503}


def template_of(path):
    path = re.sub(r"^https?://[^/]+", "", path, flags=re.IGNORECASE).partition("?")[0]
    templates = [path] if path in PATHS else PATHS
    return next((template for template in templates
                 if re.fullmatch(re.sub(r"\{\w+\}", "[^/]+", template), path)), None)


def validate(value, schema, what):
    failures.update(f"{what}: {error.message}" for error in jsonschema.Draft202012Validator(schema).iter_errors(value))


def check(method, path, status, headers, body):
    template = template_of(path)
    what, headers = f"{method} {template or path} {status}", {name.lower(): value for name, value in headers.items()}
    operation = PATHS.get(template, {}).get({"HEAD": "get"}.get(method, method.lower()))
    responses = operation["responses"] if operation else {}
    if (template or path == "*") and not operation:
        if status not in {204, 405, 400} or ("allow" not in headers and status != 400):
            failures.add(f"{what} does not tell which methods are allowed")
    if str(status) in responses:
        seen.add((method, template, str(status)))
    elif status not in FAILURES | {204}:
        failures.add(f"{what} is not described")
    response = responses.get(str(status), {} if method == "OPTIONS" else FAILURE)
    for name, header in response.get("headers", {}).items():
        if name.lower() in headers:
            validate(headers[name.lower()], header["schema"], f"{what} {name}")
        elif header.get("required"):
            failures.add(f"{what} has no {name}")
    for kind, content in response.get("content", {}).items():
        if not headers.get("content-type", "").startswith(kind):
            failures.add(f"{what} is {headers.get('content-type')}, not {kind}")
        elif "schema" in content and method != "HEAD":
            validate(json.loads(body), content["schema"], what)


for line in pathlib.Path(sys.argv[2]).read_text().splitlines():
    check(**json.loads(line))
described = {(method.upper(), path, status) for path, operations in PATHS.items()
             for method, operation in operations.items() if method != "parameters"
             for status in operation["responses"] if status != "default"}
failures.update("no reply was " + " ".join(missing) for missing in described - seen)
print("\n".join(sorted(failures)) or f"{len(seen)} kinds of reply are as described")
sys.exit(1 if failures else 0)
