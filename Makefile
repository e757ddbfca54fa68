# The everyday tasks.  `make help` tells them; the build itself is CMake's.

SHELL := /bin/bash
MAKEFLAGS += --no-print-directory
.DEFAULT_GOAL := help
.PHONY: help demo test lint format-check bench clean

JOBS ?= $(shell nproc)

BUILD_PACKAGES := g++ cmake make libcli11-dev libpng-dev nlohmann-json3-dev
TEST_PACKAGES := $(BUILD_PACKAGES) libgtest-dev googletest libgmock-dev graphicsmagick netpbm
LINT_PACKAGES := $(TEST_PACKAGES) clang-format-14 clang-tidy-14 libbenchmark-dev
BENCH_PACKAGES := $(BUILD_PACKAGES) libbenchmark-dev

SOURCE_FOLDERS := $(wildcard include src tools tests examples benchmarks)
SOURCES = $(shell find $(SOURCE_FOLDERS) -name '*.h' -o -name '*.cpp')

help:
	@echo 'make demo    build the tool and show what it tells of the example drawings'
	@echo 'make test    build and run all tests, plainly and with sanitizers'
	@echo 'make lint    check the form of the sources, and run clang-tidy'
	@echo 'make bench   measure the tool on large drawings'
	@echo 'make clean   remove everything that was built'
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
	@echo; echo '$$ zdx thumb examples/site-plan.dwg -O build/demo/site-plan.png'
	@build/demo/bin/zdx thumb examples/site-plan.dwg -O build/demo/site-plan.png
	@echo 'The preview picture is in build/demo/site-plan.png.'

# The quick check first; what CTest says comes last.
test:
	@.ci/packages $(TEST_PACKAGES)
	@if command -v clang-format-14 > /dev/null; then $(MAKE) format-check; \
	  else echo 'The form of the sources is not checked: clang-format-14 is not here.'; fi
	@for preset in dev asan; do \
	  echo "== $$preset"; \
	  cmake --preset $$preset && cmake --build --preset $$preset -j$(JOBS) && \
	    ctest --preset $$preset -j$(JOBS) || exit 1; \
	done

format-check:
	@clang-format-14 --dry-run -Werror $(SOURCES)
	@echo 'The form of all sources is right.'

lint:
	@.ci/packages $(LINT_PACKAGES)
	@$(MAKE) format-check
	@cmake -S . -B build/lint -DZDX_BENCHMARKS=ON -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON > /dev/null
	@run-clang-tidy-14 -quiet -p build/lint -j $(JOBS) \
	  "^$(CURDIR)/(src|tools|examples|benchmarks)/(?!.*_benchmark\.cpp)"

bench:
	@.ci/packages $(BENCH_PACKAGES)
	@benchmarks/run.sh

clean:
	rm -rf build
