# The commands for a person. Each first installs what the machine lacks. ARCH=x86 tests, or opens, the 32-bit add-in.
ARCH ?= x64

.PHONY: all demo test faults checked soak check bench fuzz sandbox shots package kit test-package packages clean

all: packages
	@tools/build x64
	@tools/build x86
	@tools/build native

packages:
	@tools/install-packages

# Installs and builds only what it plays.
demo:
	@tools/install-packages --demo
	@tools/build x64 addin help-file corvane-host
	@tools/build native corvane-server
	@sandbox/demo

test: packages
	@tools/build $(ARCH)
	@tools/build native
	tests/run $(ARCH)

# Every fault of the server: in each call, and in each request of each dialog; what can be played in any host, by the
# library that does so; and the faults of our own that show only where they are trapped.
faults: all
	tests/faults/run $(ARCH)
	tests/scenarios/run $(ARCH) stories
	tests/scenarios/run $(ARCH) --companion
	$(MAKE) --no-print-directory checked

# The scenarios with a library and a host that end at undefined behaviour and at misused containers.
checked: all
	@[ -e build/checked/build.ninja ] || cmake --preset checked >/dev/null
	ninja -C build/checked --quiet addin corvane-host companion help-file
	tests/scenarios/run checked

# A thousand saves in one host; what it holds after each round is in build/scenarios/soak/host.txt.
soak: all
	tests/scenarios/run $(ARCH) soak ROUNDS=200 SETTLED=10

check: all
	@tools/install-packages clang libclang-rt-dev cppcheck
	tools/check

shots: all
	sandbox/shots $(ARCH)

bench: all
	ninja -C build/x64 --quiet bench
	bench/run

fuzz:
	@tools/install-packages clang libclang-rt-dev
	@[ -e build/fuzz/build.ninja ] || cmake --preset fuzz >/dev/null
	ninja -C build/fuzz --quiet fuzz
	fuzz/run

# Installers and policy templates, to dist. SIGN_PFX and SIGN_PASS sign them.
package: all
	packaging/build

# What is tried on Windows without installing anything, to dist.
kit: all
	packaging/kit

test-package: all
	tests/package/run $(ARCH)
	tests/package/kit $(ARCH)

sandbox: all
	sandbox/open $(ARCH)

clean:
	rm -rf build
