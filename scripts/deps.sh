#!/usr/bin/env bash
# Installs the Debian packages the build needs, if any is missing.
set -euo pipefail
need=()
for p in "$@" cmake g++ make libgtest-dev pkg-config python3; do
  dpkg -s "$p" >/dev/null 2>&1 || need+=("$p")
done
if ((${#need[@]})); then
  echo "installing: ${need[*]}"
  apt-get update -qq
  DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${need[@]}"
fi
