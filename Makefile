export CMAKE_BUILD_PARALLEL_LEVEL ?= $(shell nproc)
export CTEST_PARALLEL_LEVEL ?= $(shell nproc)

.DEFAULT_GOAL := help
.PHONY: help run test check sanitize windows bench race faults fuzz coverage mutants threads memory nightly package docs clean

help: ## list the targets
	@awk -F ':.*## ' '/^[a-z]+:.*## / { printf "  make %-9s %s\n", $$1, $$2 }' Makefile
run: ## build the optimised console and run the tour of the samples
	@scripts/run
test: ## build for development and run every test
	@scripts/test
check: ## formatting, floors, comments, static analysis, files that stand alone
	@scripts/check
sanitize: ## every test under the address, undefined behaviour and leak sanitizers
	@scripts/sanitize
faults: ## all that can fail, failing: every allocation and callback of the tour and more
	@scripts/faults
windows: ## cross-compile for Windows and run the tests under Wine
	@scripts/windows
bench: ## measure: times, instruction counts beside their goals, curves: build/bench/index.html
	@scripts/bench
race: ## measure the same work in other binders, beside ours: build/bench/race.html
	@scripts/race
fuzz: ## run each fuzz target for 30 seconds
	@scripts/fuzz
coverage: ## measure which lines and branches of the library the tests reach
	@scripts/coverage
mutants: ## break the library in small ways, and tell what no test notices
	@scripts/mutants
threads: ## every test under the thread sanitizer
	@scripts/threads
memory: ## the tour under valgrind
	@scripts/memory
nightly: ## every harness, each to its end: some hours
	@scripts/nightly
package: ## make .deb packages and a .zip for Windows
	@scripts/package
docs: ## write the guides and the references, of C++ and of the samples, for a browser
	@scripts/docs
clean: ## remove everything that was built
	@rm -rf build
