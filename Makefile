# The everyday tasks.  `make help` tells them; the build itself is CMake's.

SHELL := /bin/bash
MAKEFLAGS += --no-print-directory
.DEFAULT_GOAL := help
.PHONY: help demo test test-windows compare-systems package-windows windows-tools lint format-check bench bench-blocks bench-references clean

JOBS ?= $(shell nproc)

BUILD_PACKAGES := g++ cmake make libcli11-dev libpng-dev nlohmann-json3-dev
TEST_PACKAGES := $(BUILD_PACKAGES) libgtest-dev googletest libgmock-dev graphicsmagick netpbm
WINDOWS_PACKAGES := g++-mingw-w64-x86-64-posix libz-mingw-w64-dev wine64 wine64-preloader googletest lld \
  cmake make libcli11-dev nlohmann-json3-dev dpkg-dev debian-archive-keyring zip
LINT_PACKAGES := $(TEST_PACKAGES) clang-format-14 clang-tidy-14 libbenchmark-dev \
  g++-mingw-w64-x86-64-posix
BENCH_PACKAGES := $(BUILD_PACKAGES) libbenchmark-dev

SOURCE_FOLDERS := $(wildcard include src tools tests examples benchmarks)
SOURCES = $(shell find $(SOURCE_FOLDERS) -name '*.h' -o -name '*.cpp')

# Configure, build and test a preset, with so many tests at a time.
check = cmake --preset $(1) && cmake --build --preset $(1) -j$(JOBS) && ctest --preset $(1) -j$(2)

help:
	@echo 'make demo             build the tool and show what it tells of the example drawings'
	@echo 'make test             build and run all tests: with sanitizers, for Windows, some plainly'
	@echo 'make test-windows     cross-build for Windows, and run all tests by Wine'
	@echo 'make package-windows  make build/ZDXEngine-VERSION-windows-x86_64.zip, and try it'
	@echo 'make lint             check the form of the sources, and run clang-tidy'
	@echo 'make bench            measure the tool on large drawings'
	@echo 'make bench-blocks     measure the values of one block among many references'
	@echo 'make bench-references measure a walk through drawings that refer to each other'
	@echo 'make clean            remove everything that was built'
	@echo 'JOBS=N limits the builds and tests to N at a time.'

demo:
	@.ci/packages $(BUILD_PACKAGES)
	@mkdir -p build
	@cmake -S . -B build/demo -DCMAKE_BUILD_TYPE=Release -DZDX_TESTS=OFF > build/demo.log 2>&1 || \
	  { cat build/demo.log; exit 1; }
	@cmake --build build/demo -j$(JOBS) --target zdx
	@for drawing in site-plan.dwg grading.dxf survey-r2000.dwg legacy-r14.dwg legacy-r12.dxf; do \
	  echo; echo "\$$ zdx info examples/$$drawing"; \
	  build/demo/bin/zdx info examples/$$drawing || exit 1; \
	done
	@for words in 'blocks' 'info --select blocks --block TITLE_BLOCK' 'get block:TITLE_BLOCK:CLIENT'; do \
	  echo; echo "\$$ zdx $$words examples/site-plan.dwg"; \
	  build/demo/bin/zdx $$words examples/site-plan.dwg || exit 1; \
	done
	@echo; echo '$$ zdx thumb examples/site-plan.dwg -O build/demo/site-plan.png'
	@build/demo/bin/zdx thumb examples/site-plan.dwg -O build/demo/site-plan.png
	@echo 'The preview picture is in build/demo/site-plan.png.'

# The quick check first; what CTest says comes last.  Plainly runs what the sanitizers would change alone:
# `ctest --preset dev` has all.
test:
	@.ci/packages $(TEST_PACKAGES)
	@if command -v clang-format-14 > /dev/null; then $(MAKE) format-check; \
	  else echo 'The form of the sources is not checked: clang-format-14 is not here.'; fi
	@echo '== dev'
	@cmake --preset dev && cmake --build --preset dev -j$(JOBS) --target zdx_plain_tests && \
	  ctest --preset dev -L plain -j$(JOBS)
	@echo '== asan'
	@$(call check,asan,$(JOBS))
	@if $(MAKE) windows-tools 2> build/windows-tools.log; then $(MAKE) test-windows; \
	  else echo "Windows isn't tested: $$(grep -v '^make' build/windows-tools.log | tail -n 1)"; fi

test-windows: windows-tools
	@.ci/windows-libraries $(JOBS)
	@echo '== windows'
	@# Twice as many, for they wait for Wine's server as much as they compute.
	@{ $(call check,windows,$$((2 * $(JOBS)))) && $(MAKE) compare-systems; }; status=$$?; .ci/wine --stop; exit $$status

# What both systems tell of the examples, and of real drawings where there are some.
compare-systems:
	@.ci/packages $(TEST_PACKAGES)
	@cmake --preset dev > /dev/null && cmake --build --preset dev -j$(JOBS) --target zdx > /dev/null
	@.ci/compare-systems build/dev/bin/zdx build/windows/bin/zdx.exe \
	  $(wildcard examples/*.d?? ../shared/samples/*.d??)

package-windows: windows-tools
	@.ci/windows-libraries $(JOBS)
	@.ci/package-windows $(JOBS)

# All that has to be fetched.
windows-tools:
	@.ci/packages $(WINDOWS_PACKAGES)
	@.ci/debian-source libpng1.6 build/windows-sources

format-check:
	@clang-format-14 --dry-run -Werror $(SOURCES)
	@echo 'The form of all sources is right.'

lint:
	@.ci/packages $(LINT_PACKAGES)
	@$(MAKE) format-check
	@cmake -S . -B build/lint -DZDX_BENCHMARKS=ON -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON > /dev/null
	@run-clang-tidy-14 -quiet -p build/lint -j $(JOBS) \
	  "^$(CURDIR)/(src|tools|examples|benchmarks)/(?!.*_benchmark\.cpp)"
	@.ci/lint-windows

bench:
	@.ci/packages $(BENCH_PACKAGES)
	@benchmarks/run.sh

bench-blocks:
	@.ci/packages $(BENCH_PACKAGES)
	@benchmarks/run.sh blocks

bench-references:
	@.ci/packages $(BENCH_PACKAGES)
	@benchmarks/run.sh references

clean:
	@.ci/wine --stop
	rm -rf build
