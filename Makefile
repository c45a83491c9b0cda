# The commands of this repository. Each installs what it needs on Debian and Ubuntu, builds under
# build/ and leaves the rest of the machine alone. `make help` lists them.

# On a build server the headers are precompiled; `make test PRESET=sanitize` tests any other build.
PRESET ?= $(if $(filter true 1,$(CI)),ci,dev)
CTEST_FLAGS ?=
FUZZ_SECONDS ?= 30
PREFIX ?= /usr/local

STAGE := build/stage
need = tools/install-packages.sh
build = cmake --preset $(1) --log-level=WARNING && cmake --build --preset $(1)

# Groups of packages that a build needs besides the ordinary ones.
groups_sanitize := clang
groups_coverage := coverage

.PHONY: help run test screenshot bench coverage fuzz lint format count install package clean
.DEFAULT_GOAL := help

help:
	@echo 'make run         build the program, install it into $(STAGE) and start it'
	@echo 'make test        build and test (PRESET=dev, ci, sanitize, release-test; CTEST_FLAGS=-R name)'
	@echo 'make screenshot  pictures of the windows in build/screenshots, at several sizes and scales'
	@echo 'make bench       measure, beside the peers (FILTER=name)'
	@echo 'make coverage    which lines and branches the tests reach, layer by layer (LINES=1: which not)'
	@echo 'make fuzz        each fuzzer for FUZZ_SECONDS ($(FUZZ_SECONDS))'
	@echo 'make lint        clang-tidy and clang-format over all sources'
	@echo 'make format      let clang-format settle the spaces'
	@echo 'make count       lines of the tests and of the product'
	@echo 'make install     install into PREFIX ($(PREFIX)), below DESTDIR where given'
	@echo 'make package     a Debian package in build/release/package, checked'
	@echo 'make clean       forget what was built'

run:
	@$(need) build run
	@$(call build,release)
	@cmake --install build/release --prefix $(STAGE) >build/install.log || { cat build/install.log; exit 1; }
	@tools/run.sh $(STAGE)/bin/orbisol

test:
	@$(need) build test $(groups_$(PRESET))
	@$(call build,$(PRESET))
	@ctest --preset $(PRESET) $(CTEST_FLAGS)

screenshot:
	@$(need) build run test $(groups_$(PRESET))
	@cmake --preset $(PRESET) --log-level=WARNING && cmake --build --preset $(PRESET) --target orbisol_screenshots
	@tools/screenshot.sh build/$(PRESET)/tools/screenshot/orbisol_screenshots

bench:
	@$(need) build run bench
	@$(call build,bench)
	@tools/bench.py build/bench/bench $(FILTER)

coverage:
	@$(need) build test coverage
	@tools/coverage.sh $(if $(LINES),--lines)

fuzz:
	@$(need) build clang
	@FUZZ_SECONDS=$(FUZZ_SECONDS) tools/fuzz.sh

lint:
	@$(need) build test lint
	@tools/lint.sh $(LINT_FLAGS)

format:
	@$(need) lint
	@git ls-files -co --exclude-standard -- '*.cpp' '*.h' | xargs -r clang-format -i

count:
	@tools/count_lines.py

install:
	@$(need) build run
	@$(call build,release)
	@umask 022; cmake --install build/release --prefix "$(PREFIX)"

package:
	@$(need) build package
	@$(call build,release)
	@tools/package.sh build/release

clean:
	rm -rf build
