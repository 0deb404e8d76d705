# Everything a person or a machine does with this tree. Each target installs what it lacks first.
JOBS ?= $(shell nproc)

# Where `make install` puts it.
PREFIX ?= $(if $(filter 0,$(shell id -u)),/usr/local,$(HOME)/.local)

.PHONY: run build install uninstall package test test-asan test-tsan check check-quick check-budgets check-package \
	check-darwin mac-report check-debian hosts soak fuzz bench bench-peers ground-truth format clean

run: build
	./build/release/vantrix $(ARGS)

build:
	scripts/setup.sh build
	cmake --preset release
	cmake --build --preset release -j $(JOBS)

install: build
	cmake --install build/release --prefix "$(PREFIX)" --strip

# What the last `make install` of this tree put in place.
uninstall:
	scripts/uninstall.sh build/release

# Debian's package and its debug symbols, into build/packages.
package:
	scripts/setup.sh build package
	scripts/package.sh

# Installs, upgrades and removes that package in fresh systems of Debian 12 and 13; as root.
check-package:
	scripts/setup.sh debian
	scripts/check_package.sh

test:
	scripts/setup.sh build test
	cmake --preset dev
	cmake --build --preset dev -j $(JOBS)
	ctest --preset dev -j $(JOBS)

test-asan:
	scripts/setup.sh build test
	cmake --preset asan
	cmake --build --preset asan -j $(JOBS)
	ctest --preset asan -j $(JOBS)

# The sanitizer knows few layouts of memory, and the toolkit not at all.
test-tsan:
	scripts/setup.sh build test
	cmake --preset tsan
	cmake --build --preset tsan -j $(JOBS)
	setarch -R build/tsan/tests/core_tests --gtest_brief=1

check: check-quick check-budgets
	scripts/setup.sh test
	scripts/static_analysis.sh

check-quick:
	scripts/setup.sh build check
	scripts/check_format.sh
	scripts/check_layering.sh
	scripts/check_linux_files.sh
	scripts/check_test_share.sh
	scripts/check_macos_types.sh

# Counts what the program's work costs, which a busy machine does not change.
check-budgets:
	scripts/setup.sh build bench budgets
	cmake --preset bench
	cmake --build --preset bench -j $(JOBS) --target vantrix budget_work idle_bench
	scripts/check_budgets.py build/bench

# Optional: fetches a cross compiler.
check-darwin:
	scripts/check_darwin.sh

# On a Mac: what only a Mac can tell, as one text.
mac-report:
	scripts/mac_report.sh

# Builds and tests in fresh systems of Debian 12 and 13; as root.
check-debian:
	scripts/setup.sh debian
	scripts/check_debian.sh

# Optional: brings many desktops. Tries the program in each, and leaves pictures in build/hosts.
hosts: build
	scripts/setup.sh hosts
	tests/hosts/run.py build/release/vantrix build/hosts $(HOSTS)

# By hand: for a while, everything around the program goes wrong. SOAK_PROGRAM=build/asan/vantrix tells more.
SOAK_PROGRAM ?= build/release/vantrix
SOAK_MINUTES ?= 10
SOAK_SEED ?= 1
soak: build
	scripts/setup.sh soak
	tests/soak/soak.py $(SOAK_PROGRAM) $(SOAK_MINUTES) $(SOAK_SEED)

# Looks for faults with libFuzzer, a minute for each target; FUZZ_SECONDS=600 for longer.
fuzz:
	scripts/setup.sh build fuzz
	cmake --preset fuzz
	cmake --build --preset fuzz -j $(JOBS)
	scripts/fuzz.sh

bench:
	scripts/setup.sh build test bench
	cmake --preset bench
	cmake --build --preset bench -j $(JOBS)
	bench/run.sh build/bench

# Programs of its kind in the same minute. Optional: brings them; wants a quiet machine.
bench-peers:
	scripts/setup.sh build test bench peers
	cmake --preset bench
	cmake --build --preset bench -j $(JOBS)
	bench/peers.py build/bench

# Wants a quiet machine, and for the network root.
ground-truth: build
	scripts/setup.sh truth
	bench/ground_truth.py build/release/vantrix

format:
	scripts/setup.sh check
	git ls-files '*.h' '*.cpp' '*.mm' | xargs clang-format -i

clean:
	rm -rf build
