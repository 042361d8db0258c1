# Front door: `make demo` and `make test` install what is missing, build and run.
JOBS ?= 2
CMAKE_FLAGS ?=
PACKAGES := g++ cmake make googletest libgtest-dev libgmock-dev libhowardhinnant-date-dev \
            g++-arm-linux-gnueabihf qemu-user libcli11-dev nlohmann-json3-dev

.PHONY: all deps demo test test-host test-armhf test-asan build-host build-armhf build-asan clean

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

build-host: deps build/host/CMakeCache.txt
	cmake --build build/host -j$(JOBS)

build-armhf: deps build/armhf/CMakeCache.txt
	cmake --build build/armhf -j$(JOBS)

build-asan: deps build/asan/CMakeCache.txt
	cmake --build build/asan -j$(JOBS)

demo: build-host
	./build/host/Tools/knxconv/knxconv trace examples/telegrams.csv

test-host: build-host
	cd build/host && ctest --output-on-failure -j$(JOBS)

test-armhf: build-armhf
	cd build/armhf && ctest --output-on-failure -j$(JOBS)

test-asan: build-asan
	cd build/asan && ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
	  ctest --output-on-failure -j$(JOBS)

test: test-host test-armhf test-asan

clean:
	rm -rf build
