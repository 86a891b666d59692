# Quillon -- the front door. `make run` plays, `make test` checks everything, `make check` is the quick inner loop.
JOBS ?= 2

.PHONY: all run build deps test check assets bench clean

all: build

deps:
	@tools/install-deps.sh run

build: deps
	@cmake -S . -B build/release -DCMAKE_BUILD_TYPE=Release -DQUILLON_TESTS=OFF -DQUILLON_BENCH=OFF >/dev/null
	@cmake --build build/release -j$(JOBS)

run: build
	@tools/run-game.sh "$(CURDIR)/build/release/quillon"

test:
	@tools/install-deps.sh test assets
	@tools/run-tests.sh

check:
	@tools/install-deps.sh test
	@tools/run-tests.sh --check

assets:
	@tools/install-deps.sh assets
	@tools/build-assets.sh

bench:
	@tools/install-deps.sh test
	@tools/run-bench.sh

clean:
	rm -rf build
