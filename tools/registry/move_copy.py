"""Data movement: Copy, Set, Dup, SwapChannels and the vector copies and fills."""
from pxlreg import image, vector

T4 = '8u 16s 32s 32f'
COPY = 'move/picopy'
SET = 'move/piset'
CHAN = 'move/pichannel'
VEC = 'move/pscopy'


def lay(tmpl):
    return 'pxl::move::' + tmpl + '<{T}, pxl::Lay::{L}>'


def repack(tmpl):
    return 'pxl::move::' + tmpl + '<{T}, pxl::move::Repack::{L}>'


FAMILIES = [
    # Copy never looks at a step.
    image('Copy', shape='unary', types=T4, layouts='C1 C3 C4 AC4', desc='R', impl=lay('copyImage'),
          file=COPY, order='NS', doc='dst = src; AC4 leaves the alpha of dst'),
    image('Copy', shape='unary', types=T4, layouts='C1 C3 C4 AC4', desc='MR', impl=lay('copyMasked'),
          file=COPY, order='NS'),
    image('Copy', shape='unary', types=T4, layouts='C3 C4', desc='CR', impl=lay('copyChannel'),
          file=COPY, order='NS'),
    image('Copy', shape='unary', types=T4, layouts='C3C1 C4C1 C1C3 C1C4 AC4C3 C3AC4', desc='R',
          impl=repack('copyRepack'), file=COPY, order='NS'),
    image('Copy', shape='unary', types=T4, layouts='C3P3 C4P4 P3C3 P4C4', desc='R',
          impl=repack('copyPlanes'), file=COPY, order='NS'),
    # Set checks steps after sizes; the masked forms refuse a mask step below 1.
    image('Set', shape='set', types=T4, layouts='C1 C3 C4 AC4', desc='R', impl=lay('setImage'),
          file=SET, order='NST', doc='every processed sample = value (C1, CR: by value; else one per channel)'),
    image('Set', shape='set', types=T4, layouts='C3 C4', desc='CR', impl=lay('setChannel'),
          file=SET, order='NST'),
    image('Set', shape='set', types=T4, layouts='C1 C3 C4 AC4', desc='MR', impl=lay('setMasked'),
          file=SET, order='NST'),
    image('Dup', shape='unary', types='8u', layouts='C1C3', desc='R', impl='pxl::move::dupC1C3<{T}>',
          file=CHAN, order='NS', doc='each of the three samples of dst = src'),
    image('SwapChannels', shape='unary', types='8u 16u 32s 32f', layouts='C3 AC4', desc='R',
          extra=[('const int*', 'dstOrder')], impl=lay('swapChannels'), file=CHAN, order='NST',
          doc='dst[c] = src[dstOrder[c]], entries 0 to 2, not necessarily a permutation'),
    image('SwapChannels', shape='unary', types='8u', layouts='C3', desc='IR',
          extra=[('const int*', 'dstOrder')], impl=lay('swapChannelsInPlace'), file=CHAN, order='NST'),
    vector('Copy', shape='unary', types='8u 32f', desc='', impl='pxl::move::vectorCopy<{T}>', file=VEC,
           order='NS', doc='dst = src; the ranges must not overlap'),
    vector('Move', shape='unary', types='16s 32f', desc='', impl='pxl::move::vectorMove<{T}>', file=VEC,
           order='NS', doc='dst = src; the ranges may overlap'),
    vector('Set', shape='set', types='8u 16s 32s 32f 16sc 32fc', desc='', impl='pxl::move::vectorSet<{T}>',
           file=VEC, order='NS', doc='every element = value'),
    vector('Zero', shape='zero', types='8u 16s 32f 16sc', desc='', impl='pxl::move::vectorZero<{T}>',
           file=VEC, order='NS', doc='every element = 0'),
]
