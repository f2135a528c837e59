# The two commands of ZPXGraph: `make demo` and `make test` (and `make bench`).
# Each runs the idempotent machine set-up first, then builds with CMake.
BUILD ?= build
JOBS  ?= 2

.PHONY: all setup build demo test bench clean

all: build

setup:
	@bash scripts/setup.sh

$(BUILD)/CMakeCache.txt: | setup
	cmake -S . -B $(BUILD) -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64.cmake -DCMAKE_BUILD_TYPE=Release

build: setup $(BUILD)/CMakeCache.txt
	cmake --build $(BUILD) -j $(JOBS)

demo: build
	@bash scripts/run-demo.sh $(BUILD)

test: build
	@bash scripts/run-tests.sh $(BUILD)

bench: build
	@bash scripts/run-bench.sh $(BUILD)

clean:
	rm -rf $(BUILD)
