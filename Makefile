# SPDX-License-Identifier: MIT
# Thin over CMake and tools/. Each target installs what it needs and the machine lacks, builds, and does its job.

.PHONY: run demo programs demo-program test lint bench screenshots
PRESET ?= dev

configure = cmake --preset $(1) --log-level=WARNING >/dev/null
build = $(call configure,$(1)) && cmake --build --preset $(1)

# Without a display, Quillo is shown on a virtual one.
run: $(if $(DISPLAY)$(WAYLAND_DISPLAY),programs,demo-program)
	tools/run release

demo: demo-program
	tools/demo release

programs:
	tools/setup build run
	$(call build,release) --target quillo quillo-backend

demo-program:
	tools/setup build run demo
	$(call build,release) --target quillo-demo

test:
	tools/setup build run demo test
	$(call build,$(PRESET))
	tools/test $(PRESET)

lint:
	tools/setup build run demo test lint
	tools/lint

bench:
	tools/setup build run demo test bench
	$(call build,bench)
	tools/bench bench

screenshots:
	tools/setup build run demo test
	$(call build,$(PRESET)) --target quillo-screenshots
	tools/screenshots $(PRESET)
