export CMAKE_BUILD_PARALLEL_LEVEL ?= $(shell nproc)
export CTEST_PARALLEL_LEVEL ?= $(shell nproc)

.DEFAULT_GOAL := help
.PHONY: help run test check sanitize windows bench clean

help: ## list the targets
	@awk -F ':.*## ' '/^[a-z]+:.*## / { printf "  make %-9s %s\n", $$1, $$2 }' Makefile
run: ## build the optimised console and run the tour of the samples
	@scripts/run
test: ## build for development and run every test
	@scripts/test
check: ## formatting, static analysis, headers that stand alone
	@scripts/check
sanitize: ## every test under the address, undefined behaviour and leak sanitizers
	@scripts/sanitize
windows: ## cross-compile for Windows and run the tests under Wine
	@scripts/windows
bench: ## measure: times, and instruction counts beside their goals
	@scripts/bench
clean: ## remove everything that was built
	@rm -rf build
