# Front door. `make demo` and `make test` install what is missing (Debian
# packages, with apt-get), build and run; the other targets are listed in the
# README.
JOBS ?= 2
FUZZ_SECONDS ?= 60
FUZZ_SECONDS_IN_TEST ?= 10
CMAKE_FLAGS ?=
# What the library and the tool need to build (make demo); a dependency of
# the tool joins this list.
DEMO_PACKAGES = g++ cmake make libhowardhinnant-date-dev nlohmann-json3-dev libpugixml-dev knxd-dev
# Everything else that make test uses (the daemon and its tools for the bus
# tests).
PACKAGES = $(DEMO_PACKAGES) googletest libgtest-dev libgmock-dev \
           g++-arm-linux-gnueabihf qemu-user \
           clang libclang-rt-14-dev valgrind libbenchmark-dev clang-format clang-tidy pkgconf dpkg-dev time \
           knxd knxd-tools
# The API reference (make docs).
DOCS_PACKAGES = doxygen

.PHONY: all deps deps-demo deps-docs demo demo-bus docs test test-host test-armhf test-asan test-fuzz test-valgrind \
        build-host build-armhf build-asan build-fuzz build-bench fuzz tsan bench instructions \
        instructions-check instructions-baseline clean \
        test-consumer check-includes format-check package test-packages test-external lint

all: build-host

deps:
	@scripts/install-packages.sh $(PACKAGES)

deps-demo:
	@scripts/install-packages.sh $(DEMO_PACKAGES)

deps-docs:
	@scripts/install-packages.sh $(DOCS_PACKAGES)

build/host/CMakeCache.txt:
	cmake -S . -B build/host -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)

# The library and the tool only, as a first run builds them.
build/demo/CMakeCache.txt:
	cmake -S . -B build/demo -DCMAKE_BUILD_TYPE=Release -DKNXCONV_BUILD_TESTS=OFF $(CMAKE_FLAGS)

build/armhf/CMakeCache.txt:
	cmake -S . -B build/armhf -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DCMAKE_TOOLCHAIN_FILE=$(CURDIR)/cmake/toolchain-armhf.cmake $(CMAKE_FLAGS)

build/asan/CMakeCache.txt:
	cmake -S . -B build/asan -DCMAKE_BUILD_TYPE=Debug -DKNXCONV_SANITIZE=ON $(CMAKE_FLAGS)

build/fuzz/CMakeCache.txt:
	CXX=clang++ cmake -S . -B build/fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKNXCONV_BUILD_FUZZERS=ON \
	  -DKNXCONV_BUILD_TESTS=OFF -DKNXCONV_BUILD_TOOLS=OFF $(CMAKE_FLAGS)

build/tsan/CMakeCache.txt:
	cmake -S . -B build/tsan -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKNXCONV_TSAN=ON -DKNXCONV_BUILD_TOOLS=OFF $(CMAKE_FLAGS)

build/bench/CMakeCache.txt:
	cmake -S . -B build/bench -DCMAKE_BUILD_TYPE=Release -DKNXCONV_BUILD_BENCHMARKS=ON \
	  -DKNXCONV_BUILD_TESTS=OFF -DKNXCONV_BUILD_TOOLS=ON $(CMAKE_FLAGS)

build-host: deps build/host/CMakeCache.txt
	cmake --build build/host -j$(JOBS)

build-armhf: deps build/armhf/CMakeCache.txt
	cmake --build build/armhf -j$(JOBS)

build-asan: deps build/asan/CMakeCache.txt
	cmake --build build/asan -j$(JOBS)

build-fuzz: deps build/fuzz/CMakeCache.txt
	cmake --build build/fuzz -j$(JOBS)

demo: deps-demo build/demo/CMakeCache.txt
	cmake --build build/demo -j$(JOBS)
	./build/demo/Tools/knxconv/knxconv trace examples/telegrams.csv || true

# The API reference from the public headers' comments, in build/docs/html;
# any Doxygen warning fails.
docs: deps-docs
	mkdir -p build/docs
	KNXCONV_VERSION=$$(sed -n 's/^project(KnxValueConverter VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt) \
	  doxygen docs/Doxyfile

# A KNX daemon on a dummy bus (private socket, nothing on the network), the
# monitor listening, the example trace replayed into it; all stopped after.
demo-bus: build-host
	scripts/demo-bus.sh build/host/Tools/knxconv/knxconv

test-host: build-host
	cd build/host && ctest --output-on-failure -j$(JOBS)

test-armhf: build-armhf
	cd build/armhf && ctest --output-on-failure -j$(JOBS)

test-asan: build-asan
	cd build/asan && ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
	  ctest --output-on-failure -j$(JOBS)

test-fuzz: build-fuzz
	Fuzz/run-fuzzers.sh build/fuzz $(FUZZ_SECONDS_IN_TEST)

test-valgrind: build-host
	scripts/valgrind-trace.sh build/host/Tools/knxconv/knxconv examples/telegrams.csv
	scripts/valgrind-bus.sh build/host/Tools/knxconv/knxconv

# The installed package as a server developer uses it (CMake and pkg-config).
test-consumer: build-host
	scripts/test-consumer.sh build/host build/consumer

# The converter library includes only the platform libraries' umbrella headers.
check-includes:
	scripts/check-includes.sh

format-check:
	scripts/format-check.sh

# clang-tidy (.clang-tidy) over the project's code in build/host's compile
# database; any finding fails.
lint: build-host
	LINT_JOBS=$(JOBS) scripts/lint.sh build/host

# KNXCONV_PLATFORM=external, with build/host's substitutes posing as the real
# platform libraries.
test-external: build-host
	scripts/test-external-platform.sh build/host build/external

test: test-host test-armhf test-asan test-fuzz test-valgrind test-consumer check-includes format-check test-external lint \
      docs instructions-check

# Debian packages for amd64 and armhf (cross build) in build/packages.
build/package-amd64/CMakeCache.txt:
	cmake -S . -B build/package-amd64 -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr \
	  -DKNXCONV_BUILD_TESTS=OFF $(CMAKE_FLAGS)

build/package-armhf/CMakeCache.txt:
	cmake -S . -B build/package-armhf -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr \
	  -DCMAKE_INSTALL_LIBDIR=lib/arm-linux-gnueabihf -DKNXCONV_BUILD_TESTS=OFF \
	  -DCMAKE_TOOLCHAIN_FILE=$(CURDIR)/cmake/toolchain-armhf.cmake $(CMAKE_FLAGS)

package: deps build/package-amd64/CMakeCache.txt build/package-armhf/CMakeCache.txt
	cmake --build build/package-amd64 -j$(JOBS)
	cmake --build build/package-armhf -j$(JOBS)
	rm -rf build/packages
	cd build/package-amd64 && cpack -B $(CURDIR)/build/packages
	cd build/package-armhf && cpack -B $(CURDIR)/build/packages
	scripts/list-packages.sh build/packages

# Installs the amd64 packages, tests against /usr, removes them (root); the
# armhf packages unpacked into a sysroot for a cross-compiled consumer.
test-packages: package
	scripts/test-packages.sh build/packages
	scripts/test-consumer-armhf.sh build/packages build/consumer-armhf

fuzz: build-fuzz
	Fuzz/run-fuzzers.sh build/fuzz $(FUZZ_SECONDS)

tsan: deps build/tsan/CMakeCache.txt
	cmake --build build/tsan -j$(JOBS) --target ConcurrentConversionTest StandardTableConcurrencyTest
	cd build/tsan && TSAN_OPTIONS=halt_on_error=1 ctest --output-on-failure -R 'Concurren'

# Conversions (Google Benchmark), then knxconv trace over a generated trace of
# a million telegrams: telegrams per second and memory, text and --json.
bench: deps build/bench/CMakeCache.txt
	cmake -S . -B build/bench -DKNXCONV_BUILD_TOOLS=ON >/dev/null
	cmake --build build/bench -j$(JOBS)
	./build/bench/Benchmarks/ConversionBenchmark --benchmark_out=build/bench.json --benchmark_out_format=json
	scripts/bench-trace.sh build/bench/Tools/knxconv/knxconv build/bench-trace

build-bench: deps build/bench/CMakeCache.txt
	cmake --build build/bench -j$(JOBS) --target InstructionCount

# Instructions per conversion, facade and floor, every standard row (callgrind).
instructions: build-bench
	scripts/count-instructions.sh build/bench/Benchmarks/InstructionCount

# Fails when a conversion costs more than 5 % above the committed baseline.
instructions-check: build-bench
	scripts/count-instructions.sh build/bench/Benchmarks/InstructionCount --check Benchmarks/instructions-baseline.txt

# Rewrites the baseline; commit it on purpose, with the reason.
instructions-baseline: build-bench
	scripts/count-instructions.sh build/bench/Benchmarks/InstructionCount --write Benchmarks/instructions-baseline.txt

clean:
	rm -rf build
