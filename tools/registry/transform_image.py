"""Image FFT and DFT in the two-dimensional Pack layout: plans and
transforms, argument lists written out."""
from pxlreg import Custom

NS = 'pxl::transform::'
LAYS = {'C1': (1, 1), 'C3': (3, 3), 'C4': (4, 4), 'AC4': (3, 4)}


def _family(kind):
    F = kind == 'FFT'
    low = 'fft2' if F else 'dft2'
    C, C32 = ('PxlFftCtx2D', 'PxlFftCtx2D32s') if F else ('PxlDftCtx2D', 'PxlDftCtx2D32s')
    size = [('int', 'orderX'), ('int', 'orderY')] if F else [('PxlSize', 'roi')]
    sz = 'orderX, orderY' if F else 'roi'
    out = []
    for t, ctx, real in (('C_32fc', C, False), ('R_32f', C, True), ('R_32s', C32, None)):
        tail = '32s' if real is None else ''
        rf = '' if real is None else f', {str(real).lower()}'
        out += [
            (f'pxli{kind}InitAlloc_{t}', 'PxlStatus',
             [(f'{ctx}**', 'spec')] + size + [('int', 'flag'), ('int', 'hint')],
             f'{NS}{low}InitAlloc{tail}(spec, {sz}, flag, hint{rf})'),
            (f'pxli{kind}Free_{t}', 'PxlStatus', [(f'{ctx}*', 'spec')], f'{NS}{low}Free{tail}(spec{rf})'),
            (f'pxli{kind}GetBufSize_{t}', 'PxlStatus', [(f'const {ctx}*', 'spec'), ('int*', 'size')],
             f'{NS}{low}BufSize{tail}(spec, size{rf})'),
        ]
    tr = [('Pxl8u*', 'buffer')]
    for d, inv in (('Fwd', 'false'), ('Inv', 'true')):
        out.append((f'pxli{kind}{d}_CToC_32fc_C1R', 'PxlStatus',
                    [('const Pxl32fc*', 'src'), ('int', 'srcStep'), ('Pxl32fc*', 'dst'), ('int', 'dstStep'),
                     (f'const {C}*', 'spec')] + tr,
                    f'{NS}cplx(src, srcStep, dst, dstStep, spec, buffer, {inv})'))
        out.append((f'pxli{kind}{d}_CToC_32fc_C1IR', 'PxlStatus',
                    [('Pxl32fc*', 'srcDst'), ('int', 'srcDstStep'), (f'const {C}*', 'spec')] + tr,
                    f'{NS}cplx(srcDst, srcDstStep, srcDst, srcDstStep, spec, buffer, {inv})'))
    for d, stem, inv in (('Fwd', 'RToPack', 'false'), ('Inv', 'PackToR', 'true')):
        for lay, (ch, ps) in LAYS.items():
            out.append((f'pxli{kind}{d}_{stem}_32f_{lay}R', 'PxlStatus',
                        [('const Pxl32f*', 'src'), ('int', 'srcStep'), ('Pxl32f*', 'dst'), ('int', 'dstStep'),
                         (f'const {C}*', 'spec')] + tr,
                        f'{NS}real<{ch}, {ps}>(src, srcStep, dst, dstStep, spec, buffer, {inv})'))
            out.append((f'pxli{kind}{d}_{stem}_32f_{lay}IR', 'PxlStatus',
                        [('Pxl32f*', 'srcDst'), ('int', 'srcDstStep'), (f'const {C}*', 'spec')] + tr,
                        f'{NS}real<{ch}, {ps}>(srcDst, srcDstStep, srcDst, srcDstStep, spec, buffer, {inv})'))
    for lay, (ch, ps) in LAYS.items():
        out.append((f'pxli{kind}Fwd_RToPack_8u32s_{lay}RSfs', 'PxlStatus',
                    [('const Pxl8u*', 'src'), ('int', 'srcStep'), ('Pxl32s*', 'dst'), ('int', 'dstStep'),
                     (f'const {C32}*', 'spec'), ('int', 'scale')] + tr,
                    f'{NS}fwd8u<{ch}, {ps}>(src, srcStep, dst, dstStep, spec, scale, buffer)'))
    for lay, (ch, ps) in LAYS.items():
        out.append((f'pxli{kind}Inv_PackToR_32s8u_{lay}RSfs', 'PxlStatus',
                    [('const Pxl32s*', 'src'), ('int', 'srcStep'), ('Pxl8u*', 'dst'), ('int', 'dstStep'),
                     (f'const {C32}*', 'spec'), ('int', 'scale')] + tr,
                    f'{NS}inv8u<{ch}, {ps}>(src, srcStep, dst, dstStep, spec, scale, buffer)'))
    return out


FAMILIES = [
    Custom('pxliFFT', 'transform/pifftf', _family('FFT'),
           doc='two-dimensional FFT of power-of-two sides; real spectra in the Pack layout'),
    Custom('pxliDFT', 'transform/pifftf', _family('DFT'),
           doc='two-dimensional DFT of any size; real spectra in the Pack layout'),
]
