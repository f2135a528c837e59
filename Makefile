# The two commands of ZPXGraph: `make demo` and `make test` (and `make sdk`,
# `make bench`). Each runs the idempotent machine set-up first, then builds
# with CMake: the 64-bit library in $(BUILD), the 32-bit one in $(BUILD32).
BUILD   ?= build
BUILD32 ?= build-x86
SDK     ?= $(BUILD)/sdk
JOBS    ?= 2

.PHONY: all setup build build64 build32 demo test sdk bench clean

all: build

setup:
	@bash scripts/setup.sh

$(BUILD)/CMakeCache.txt: | setup
	cmake -S . -B $(BUILD) -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64.cmake -DCMAKE_BUILD_TYPE=Release

$(BUILD32)/CMakeCache.txt: | setup
	cmake -S . -B $(BUILD32) -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64-i686.cmake -DCMAKE_BUILD_TYPE=Release

build64: setup $(BUILD)/CMakeCache.txt
	cmake --build $(BUILD) -j $(JOBS)

build32: setup $(BUILD32)/CMakeCache.txt
	cmake --build $(BUILD32) -j $(JOBS)

build: build64 build32

demo: build64
	@bash scripts/run-demo.sh $(BUILD)

sdk: build
	@bash scripts/make-sdk.sh $(BUILD) $(BUILD32) $(SDK)

test: build
	@bash scripts/run-tests.sh $(BUILD)
	@bash scripts/run-tests.sh $(BUILD32)
	@bash scripts/make-sdk.sh $(BUILD) $(BUILD32) $(SDK)
	@bash scripts/test-sdk.sh $(SDK)

bench: build64
	@bash scripts/run-bench.sh $(BUILD)

clean:
	rm -rf $(BUILD) $(BUILD32)
