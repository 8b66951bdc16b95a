"""One-level wavelet transforms: plans and transforms, argument lists
written out."""
from pxlreg import Custom

NS = 'pxl::transform::'
TAPS = [('const Pxl32f*', 'pTapsLow'), ('int', 'lenLow'), ('int', 'anchorLow'),
        ('const Pxl32f*', 'pTapsHigh'), ('int', 'lenHigh'), ('int', 'anchorHigh')]
TA = 'pTapsLow, lenLow, anchorLow, pTapsHigh, lenHigh, anchorHigh'
BANDS = ['LowLow', 'HighLow', 'LowHigh', 'HighHigh']


def _members():
    out = []
    for lay, ch in (('C1R', 1), ('C3R', 3)):
        for d, ctx in (('Fwd', 'PxlWTFwdCtx'), ('Inv', 'PxlWTInvCtx')):
            tag = {('Fwd', 1): 46, ('Fwd', 3): 48, ('Inv', 1): 47, ('Inv', 3): 49}[(d, ch)]
            out += [
                (f'pxliWT{d}InitAlloc_32f_{lay}', 'PxlStatus', [(f'{ctx}**', 'spec')] + TAPS,
                 f'{NS}wt{d}Init<{ch}>(spec, {TA})'),
                (f'pxliWT{d}Free_32f_{lay}', 'PxlStatus', [(f'{ctx}*', 'spec')],
                 f'{NS}wtFree<{ctx}, {tag}>(spec)'),
                (f'pxliWT{d}GetBufSize_{lay}', 'PxlStatus', [(f'const {ctx}*', 'spec'), ('int*', 'size')],
                 f'{NS}wt{d}BufSize<{ch}>(spec, size)'),
            ]
        fwd = [('const Pxl32f*', 'src'), ('int', 'srcStep')]
        for b in BANDS:
            fwd += [('Pxl32f*', 'dst' + b), ('int', f'dst{b}Step')]
        fwd += [('PxlSize', 'roi'), ('const PxlWTFwdCtx*', 'spec'), ('Pxl8u*', 'buffer')]
        out.append((f'pxliWTFwd_32f_{lay}', 'PxlStatus', fwd,
                    f'{NS}wtFwd<{ch}>({", ".join(n for _, n in fwd)})'))
        inv = []
        for b in BANDS:
            inv += [('const Pxl32f*', 'src' + b), ('int', f'src{b}Step')]
        inv += [('PxlSize', 'roi'), ('Pxl32f*', 'dst'), ('int', 'dstStep'), ('const PxlWTInvCtx*', 'spec'),
                ('Pxl8u*', 'buffer')]
        out.append((f'pxliWTInv_32f_{lay}', 'PxlStatus', inv,
                    f'{NS}wtInv<{ch}>({", ".join(n for _, n in inv)})'))
    return out


FAMILIES = [Custom('pxliWT', 'transform/piwtfwd', _members(),
                   doc='one level of a separable wavelet transform with the caller\'s filters')]
