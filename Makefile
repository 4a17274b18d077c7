# Tessarine: every command a developer or CI needs, on a fresh Debian machine.
#   make run    install what is missing, build, start the maker's server, start the calculator
#   make serve  the maker's server (nginx) on 127.0.0.1:SERVE_PORT; make serve-stop stops it
#   make test   install what is missing, build, run every test (SAN=1: under ASan+UBSan)
#   make bench  build optimised and run the benchmarks
#   make deps   only install the Debian packages the project needs
#   make format format every C++ file; make test checks the format first
#   make tidy   clang-tidy's bugprone and performance checks over src/
#   make install    build and install under PREFIX (default /usr/local), into DESTDIR if set
#   make package    build the Debian package (build/tessarine_*.deb)

PACKAGES := g++ make cmake ninja-build pkgconf libgtest-dev libgmock-dev libbenchmark-dev clang \
            libclang-rt-14-dev \
            nlohmann-json3-dev locales \
            qt6-base-dev qt6-multimedia-dev qt6-svg-dev libspeechd-dev speech-dispatcher poppler-utils \
            fonts-liberation2 xvfb xauth xdotool imagemagick clang-format clang-tidy \
            pulseaudio pulseaudio-utils sox espeak-ng speech-dispatcher-espeak-ng \
            speech-dispatcher-audio-plugins python3 \
            libpugixml-dev nginx \
            desktop-file-utils appstream lintian dpkg-dev fakeroot \
            dbus at-spi2-core python3-pyatspi

SAN ?= 0
PREFIX ?= /usr/local
WERROR ?= 0
JOBS ?= $(shell nproc 2>/dev/null || echo 2)

ifeq ($(SAN),1)
  BUILD_DIR := build-san
  CMAKE_FLAGS := -DCMAKE_BUILD_TYPE=Debug -DTESSARINE_SANITIZE=ON
else
  BUILD_DIR := build
  CMAKE_FLAGS := -DCMAKE_BUILD_TYPE=RelWithDebInfo
endif
CMAKE_FLAGS += -DCMAKE_INSTALL_PREFIX=$(PREFIX)
ifeq ($(WERROR),1)
  CMAKE_FLAGS += -DTESSARINE_WERROR=ON
endif

SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)

.PHONY: all deps configure build test run serve serve-stop bench fuzz clean format format-check tidy install package

all: build

# Installs the Debian packages of a list that are not installed yet.
define install_missing
	@missing=$$(for p in $(1); do \
	    dpkg-query -W -f='$${Status}\n' $$p 2>/dev/null | grep -q '^install ok installed' || echo $$p; \
	  done); \
	if [ -n "$$missing" ]; then \
	  echo "Installing:" $$missing; \
	  $(SUDO) apt-get update -qq && \
	  DEBIAN_FRONTEND=noninteractive $(SUDO) apt-get install -y -qq $$missing; \
	fi
endef

# Installs only what is missing, so that a second run is quick and quiet.
deps:
	$(call install_missing,$(PACKAGES))
	@# A locale with a decimal comma, so the number primitives are tested against one.
	@locale -a 2>/dev/null | grep -qix 'de_DE.utf8' || $(SUDO) localedef -i de_DE -f UTF-8 de_DE.UTF-8

configure: deps
	@cmake -S . -B $(BUILD_DIR) -G Ninja $(CMAKE_FLAGS) > $(BUILD_DIR).configure.log 2>&1 || \
	  { cat $(BUILD_DIR).configure.log; exit 1; }

build: configure
	@cmake --build $(BUILD_DIR) -j $(JOBS)

install: build
	@DESTDIR=$(DESTDIR) cmake --install $(BUILD_DIR)

package: build
	@cmake --build $(BUILD_DIR) --target package

test: build format-check
	@cd $(BUILD_DIR) && ctest --output-on-failure -j $(JOBS)

# Every C++ file of the project in .clang-format's style.
FORMAT_FILES = $(shell git ls-files '*.cpp' '*.hpp' 2>/dev/null || find src drive desktop tests bench tools -name '*.[ch]pp')
format: deps
	@clang-format -i $(FORMAT_FILES)
format-check: deps
	@clang-format --dry-run --Werror $(FORMAT_FILES) || \
	  { echo "Some files are not formatted: run 'make format'."; exit 1; }

# The checks of .clang-tidy over the core, with the build's compile commands.
tidy: configure
	@clang-tidy -p $(BUILD_DIR) --quiet --extra-arg=-Wno-unknown-warning-option $(filter src/%.cpp,$(FORMAT_FILES))

# The desktop calculator. Without a display (DISPLAY and WAYLAND_DISPLAY empty) it
# runs for a few seconds on a virtual one, and a screenshot shows what it drew.
run: build serve
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then \
	  $(BUILD_DIR)/desktop/tessarine; \
	else \
	  echo "No display (DISPLAY and WAYLAND_DISPLAY are empty): running Tessarine under Xvfb for a few seconds."; \
	  desktop/xvfb_screenshot.sh $(BUILD_DIR)/desktop/tessarine $(BUILD_DIR)/screenshot.png; \
	fi

# The maker's web server on loopback: nginx, as the current user, serving pages made
# from the bundled rate snapshot, where a build from source fetches them
# (TESSARINE_MAKER_SERVER, 127.0.0.1:8642 by default). The base address is the
# last line printed; running it again while it runs only prints that address.
SERVE_PORT ?= 8642
serve: build
	@server/serve.sh start $(BUILD_DIR)/serve $(SERVE_PORT) $(BUILD_DIR)/server/tessarine-pages
serve-stop:
	@server/serve.sh stop $(BUILD_DIR)/serve

# After the micro-benchmarks comes the start-up benchmark (docs/benchmarks.md): time
# to the main window and memory of tessarine, an empty Qt window, SpeedCrunch and
# galculator under Xvfb, in STARTUP_ROUNDS interleaved rounds; then the installed
# program against the empty window alone. Its packages are
# installed here only. If the full build fails (the desktop application in the
# middle of a change), the benchmarks still run and tessarine is left out.
BENCH_PACKAGES := xvfb xauth libxcb1-dev qt6-base-dev speedcrunch galculator
STARTUP_ROUNDS ?= 15
bench: deps
	$(call install_missing,$(BENCH_PACKAGES))
	@cmake -S . -B build-release -G Ninja -DCMAKE_BUILD_TYPE=Release -DTESSARINE_TESTS=OFF \
	  -DTESSARINE_BENCH=ON > build-release.configure.log 2>&1 || { cat build-release.configure.log; exit 1; }
	@startup_args=; \
	cmake --build build-release -j $(JOBS) || { \
	  echo "The full build failed: the benchmarks run without tessarine."; startup_args="-t none"; \
	  cmake --build build-release -j $(JOBS) --target tessarine_bench startup_probe empty_qt_window; \
	} && \
	build-release/bench/tessarine_bench --benchmark_repetitions=5 --benchmark_report_aggregates_only=true && \
	bench/startup/run_startup_bench.sh -n $(STARTUP_ROUNDS) $$startup_args build-release; \
	if [ -z "$$startup_args" ]; then \
	  echo "The installed program (cmake --install into build-release/startup-install):"; \
	  cmake --install build-release --prefix build-release/startup-install > /dev/null && \
	  bench/startup/run_startup_bench.sh -b -n $(STARTUP_ROUNDS) -i build-release/startup-install \
	    -o build-release/bench/startup/startup_results_installed.txt build-release; \
	  tests/e2e/hear_keys.sh --latency-only build-release/desktop/tessarine \
	    build-release/drive/tessarine-drive | tail -n 2 || true; \
	fi

# Fuzzes the preferences reader, then the expression engine, with libFuzzer for
# FUZZ_SECONDS each (default 60); new inputs that find new paths go to scratch
# corpora, the saved ones are only read.
FUZZ_SECONDS ?= 60
fuzz: deps
	@cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
	  -DTESSARINE_FUZZ=ON > build-fuzz.configure.log 2>&1 || { cat build-fuzz.configure.log; exit 1; }
	@cmake --build build-fuzz -j $(JOBS) --target prefs_reader_fuzz expression_fuzz http_reply_fuzz
	@mkdir -p build-fuzz/corpus build-fuzz/expression_corpus build-fuzz/http_corpus
	@build-fuzz/tests/fuzz/prefs_reader_fuzz -max_total_time=$(FUZZ_SECONDS) -max_len=4096 \
	  build-fuzz/corpus tests/fuzz/corpus/prefs_reader
	@build-fuzz/tests/expression/expression_fuzz -max_total_time=$(FUZZ_SECONDS) -max_len=4096 \
	  build-fuzz/expression_corpus tests/expression/corpus
	@build-fuzz/tests/http/http_reply_fuzz -max_total_time=$(FUZZ_SECONDS) \
	  build-fuzz/http_corpus tests/http/corpus

clean:
	rm -rf build build-san build-release build-fuzz *.configure.log
