#!/bin/sh
# Runs a test program against the instruction level named by PXL_TEST_LEVEL
# (baseline, x86-64-v3, x86-64-v4), or the one the loader picks when unset.
# The loader's mask leaves only that level's glibc-hwcaps folder searchable;
# a mask naming no level leaves none, so the plain folder's baseline build loads.
case "${PXL_TEST_LEVEL:-}" in
  "") exec "$@" ;;
  baseline) exec /lib64/ld-linux-x86-64.so.2 --glibc-hwcaps-mask none "$@" ;;
  *) exec /lib64/ld-linux-x86-64.so.2 --glibc-hwcaps-mask "$PXL_TEST_LEVEL" "$@" ;;
esac
