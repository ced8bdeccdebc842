# SPDX-License-Identifier: MIT
# Thin over CMake and tools/. Each target installs what is missing, builds, and does its job.

.PHONY: run demo test lint bench screenshots build setup
PRESET ?= dev

run: build
	tools/run $(PRESET)

demo: build
	tools/demo $(PRESET)

test: build
	tools/test $(PRESET)

lint: setup
	tools/lint

bench:
	$(MAKE) build PRESET=release
	tools/bench release

screenshots: build
	tools/screenshots $(PRESET)

build: setup
	cmake --preset $(PRESET) --log-level=WARNING
	cmake --build --preset $(PRESET)

setup:
	tools/setup
