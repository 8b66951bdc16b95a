"""Test images and noise."""
from pxlreg import CTYPE, Custom

LAYS = ('C1', 'C3', 'C4', 'AC4')


def members():
    out = []
    for t in ('8u', '8s', '16u', '16s', '32s', '32f'):
        T = CTYPE[t]
        for l in LAYS:
            args = [(f'{T}*', 'dst'), ('int', 'dstStep'), ('PxlSize', 'roi'), ('Pxl32f', 'offset'),
                    ('Pxl32f', 'slope'), ('Pxl32s', 'axis')]
            out.append((f'pxliImageRamp_{t}_{l}R', 'PxlStatus', args,
                        f'pxl::synth::imageRamp<{T}, pxl::Lay::{l}>({", ".join(n for _, n in args)})', 'NTS',
                        {'offset': '0.0f', 'slope': '1.0f'}))
    for stem, fn, (a, b) in (('AddRandUniform_Direct', 'addRandUniform', ('low', 'high')),
                             ('AddRandGauss_Direct', 'addRandGauss', ('mean', 'deviation'))):
        for t in ('8u', '16s', '32f'):
            T = CTYPE[t]
            for l in LAYS:
                args = [(f'{T}*', 'srcDst'), ('int', 'srcDstStep'), ('PxlSize', 'roi'), (T, a), (T, b),
                        ('Pxl32u*', 'seed')]
                out.append((f'pxli{stem}_{t}_{l}IR', 'PxlStatus', args,
                            f'pxl::synth::{fn}<{T}, pxl::Lay::{l}>({", ".join(n for _, n in args)})', 'NST',
                            {a: '0', b: '0'}))
    return out


FAMILIES = [Custom('pxliImageRamp, pxliAddRandUniform_Direct, pxliAddRandGauss_Direct', 'synth/pinoise', members(),
                   doc='noise from a seed the caller carries; the last state is stored back')]
