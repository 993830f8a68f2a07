# Velmora: `make run` and `make test` do all set-up on a fresh Debian 12 machine.
SHELL := /bin/bash
.SHELLFLAGS := -eu -o pipefail -c

BUILD_DIR ?= build
ASAN_DIR ?= build-asan
FUZZ_DIR ?= build-fuzz
JOBS ?= $(shell nproc)
PREFIX ?= /usr/local
WERROR ?= ON
FUZZ_SECONDS ?= 60
CMAKE_COMMON := -G Ninja -DVELMORA_WERROR=$(WERROR)

.PHONY: all deps configure build run test test-main test-asan bench fuzz format install clean screenshots

all: build

deps:
	./scripts/install-deps.sh

configure: deps
	cmake -S . -B $(BUILD_DIR) $(CMAKE_COMMON) -DCMAKE_BUILD_TYPE=RelWithDebInfo

build: configure
	cmake --build $(BUILD_DIR) -j $(JOBS)

run: build
	./$(BUILD_DIR)/app/velmora

# Every suite in the normal build, then the Qt-free suites again under
# AddressSanitizer and UndefinedBehaviorSanitizer.
test: test-main test-asan

test-main: build
	cd $(BUILD_DIR) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

test-asan: deps
	cmake -S . -B $(ASAN_DIR) $(CMAKE_COMMON) -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-g -O1" \
	  -DVELMORA_SANITIZE=ON -DVELMORA_GUI=OFF -DVELMORA_BENCH=OFF
	cmake --build $(ASAN_DIR) -j $(JOBS)
	cd $(ASAN_DIR) && ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 \
	  UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
	  ctest --output-on-failure -L core -j $(JOBS)

bench: build
	for b in $(BUILD_DIR)/bench/bench_*; do echo "== $$b"; "$$b"; done

# libFuzzer targets under clang with the sanitizers; each runs FUZZ_SECONDS.
fuzz: deps
	CXX=clang++ cmake -S . -B $(FUZZ_DIR) $(CMAKE_COMMON) -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DVELMORA_FUZZ=ON -DVELMORA_SANITIZE=ON -DVELMORA_GUI=OFF -DVELMORA_TESTS=OFF -DVELMORA_BENCH=OFF
	cmake --build $(FUZZ_DIR) -j $(JOBS)
	for f in $(FUZZ_DIR)/fuzz/fuzz_*; do \
	  name=$$(basename $$f); mkdir -p fuzz-corpus/$$name; \
	  echo "== $$name for $(FUZZ_SECONDS) s"; \
	  "$$f" -max_total_time=$(FUZZ_SECONDS) -timeout=10 -rss_limit_mb=4096 \
	    fuzz-corpus/$$name fuzz/seeds/$$name 2>&1 | tail -n 5; \
	done

# PNG screenshots of the frame and of Plotting Options, from a virtual X server.
screenshots: build
	./scripts/screenshots.sh $(BUILD_DIR)

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

install: build
	cmake --install $(BUILD_DIR) --prefix $(PREFIX)

clean:
	rm -rf $(BUILD_DIR) $(ASAN_DIR) $(FUZZ_DIR)
