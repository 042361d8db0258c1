# Front door. `make demo` and `make test` install what is missing (Debian
# packages, with apt-get), build and run; the other targets are listed in the
# README.
JOBS ?= 2
FUZZ_SECONDS ?= 60
FUZZ_SECONDS_IN_TEST ?= 10
CMAKE_FLAGS ?=
PACKAGES := g++ cmake make googletest libgtest-dev libgmock-dev libhowardhinnant-date-dev \
            g++-arm-linux-gnueabihf qemu-user nlohmann-json3-dev \
            clang libclang-rt-14-dev valgrind libbenchmark-dev clang-format clang-tidy pkgconf dpkg-dev \
            knxd knxd-tools knxd-dev libpugixml-dev

.PHONY: all deps demo demo-bus test test-host test-armhf test-asan test-fuzz test-valgrind \
        build-host build-armhf build-asan build-fuzz fuzz tsan bench instructions clean \
        test-consumer check-includes format-check package test-packages test-external lint

all: build-host

deps:
	@missing=""; for p in $(PACKAGES); do \
	  dpkg-query -W -f='$${Status}' $$p 2>/dev/null | grep -q "ok installed" || missing="$$missing $$p"; \
	done; \
	if [ -n "$$missing" ]; then \
	  echo "Installing:$$missing"; \
	  SUDO=""; [ "$$(id -u)" = 0 ] || SUDO=sudo; \
	  $$SUDO apt-get update -qq && DEBIAN_FRONTEND=noninteractive $$SUDO apt-get install -y -qq $$missing; \
	fi

build/host/CMakeCache.txt:
	cmake -S . -B build/host -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)

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
	  -DKNXCONV_BUILD_TESTS=OFF -DKNXCONV_BUILD_TOOLS=OFF $(CMAKE_FLAGS)

build-host: deps build/host/CMakeCache.txt
	cmake --build build/host -j$(JOBS)

build-armhf: deps build/armhf/CMakeCache.txt
	cmake --build build/armhf -j$(JOBS)

build-asan: deps build/asan/CMakeCache.txt
	cmake --build build/asan -j$(JOBS)

build-fuzz: deps build/fuzz/CMakeCache.txt
	cmake --build build/fuzz -j$(JOBS)

demo: build-host
	./build/host/Tools/knxconv/knxconv trace examples/telegrams.csv || true

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

test: test-host test-armhf test-asan test-fuzz test-valgrind test-consumer check-includes format-check test-external lint

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

bench: deps build/bench/CMakeCache.txt
	cmake --build build/bench -j$(JOBS)
	./build/bench/Benchmarks/ConversionBenchmark --benchmark_out=build/bench.json --benchmark_out_format=json

instructions: bench
	scripts/count-instructions.sh build/bench/Benchmarks/InstructionCount

clean:
	rm -rf build
