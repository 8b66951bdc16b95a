#!/usr/bin/env python3
"""The shared objects export exactly the registry's names and nothing else."""
import subprocess
import sys


def exported(lib):
    out = subprocess.run(['nm', '-D', '--defined-only', lib], check=True, capture_output=True, text=True).stdout
    return {line.split()[-1] for line in out.splitlines() if line.strip()}


lib, core, names = sys.argv[1:4]
want = set(open(names).read().split())
got = exported(lib)
core_want = {'threads_omp_of_n_pxl', 'pxlConstantOfNAN_64f', 'pxl_set_rc_ssx', 'pxl_set_cw_ssx',
             'pxl_set_rcpc_fpu', 'pxl_set_cw_fpu'}
core_got = exported(core)
ok = True
for label, extra in (('exported but not in the registry', got - want), ('in the registry but not exported', want - got),
                     ('companion exports extra', core_got - core_want), ('companion misses', core_want - core_got)):
    if extra:
        ok = False
        print(label + ': ' + ' '.join(sorted(extra)[:20]) + (' ...' if len(extra) > 20 else ''))
print('%s exports %d names, %s exports %d' % (lib, len(got), core, len(core_got)))
sys.exit(0 if ok else 1)
