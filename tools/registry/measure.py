"""Reductions, norms and histograms: argument lists written out per form,
since result pointers, bounds and level arrays fall outside the grammar."""
from pxlreg import CTYPE, Custom

LAYS = ('C1', 'C3', 'C4', 'AC4')
IMG = lambda T: [(f'const {T}*', 'src'), ('int', 'srcStep'), ('PxlSize', 'roi')]


def entry(name, args, impl, order='', sweep=None):
    """order puts the member into the argument sweep; result pointers take
    image slots there, and sweep gives the other extra arguments a value."""
    return (name, 'PxlStatus', args, f'{impl}({", ".join(n for _, n in args)})', order, sweep or {})


def reductions():
    out = []
    for stem, fn in (('Sum', 'sum'), ('Mean', 'mean')):
        for t in ('8u', '16s', '16u', '32f'):
            for l in LAYS:
                hint = [('Pxl32s', 'hint')] if t == '32f' else []
                out.append(entry(f'pxli{stem}_{t}_{l}R', IMG(CTYPE[t]) + [('Pxl64f*', stem.lower())] + hint,
                                 f'pxl::measure::{fn}<{CTYPE[t]}, pxl::Lay::{l}>', 'NTS'))
    for t in ('8u', '16s', '32f'):
        T = CTYPE[t]
        for l in LAYS:
            lay = f'{T}, pxl::Lay::{l}'
            for stem, mx in (('Min', 'false'), ('Max', 'true')):
                out.append(entry(f'pxli{stem}_{t}_{l}R', IMG(T) + [(f'{T}*', stem.lower())],
                                 f'pxl::measure::minOrMax<{lay}, {mx}>', 'NST'))
            out.append(entry(f'pxliMinMax_{t}_{l}R', IMG(T) + [(f'{T}*', 'min'), (f'{T}*', 'max')],
                             f'pxl::measure::minMax<{lay}>', 'NST'))
            for stem, mx in (('MinIndx', 'false'), ('MaxIndx', 'true')):
                out.append(entry(f'pxli{stem}_{t}_{l}R',
                                 IMG(T) + [(f'{T}*', 'value'), ('Pxl32s*', 'indexX'), ('Pxl32s*', 'indexY')],
                                 f'pxl::measure::extremeIndex<{lay}, {mx}>', 'NST',
                                 {'indexY': '(Pxl32s*)a.planes[0]'}))
    for t in ('8u', '32f'):
        T = CTYPE[t]
        for l in ('C1', 'C3', 'AC4'):
            b = T if l == 'C1' else f'const {T}*'
            fn = 'countInRangeC1' if l == 'C1' else 'countInRange'
            bound = '0' if l == 'C1' else f'(const {T}*)a.value'
            out.append(entry(f'pxliCountInRange_{t}_{l}R',
                             IMG(T) + [('Pxl32s*', 'counts'), (b, 'lower'), (b, 'upper')],
                             f'pxl::measure::{fn}<{T}, pxl::Lay::{l}>', 'NTS', {'lower': bound, 'upper': bound}))
    return out


def norms():
    out = []
    for k in ('Inf', 'L1', 'L2'):
        for t in ('8u', '16s', '16u', '32f'):
            T = CTYPE[t]
            hint = [('Pxl32s', 'hint')] if t == '32f' and k != 'Inf' else []
            for l in LAYS:
                tl = f'{T}, pxl::Lay::{l}, pxl::measure::Kind::{k}'
                out.append(entry(f'pxliNorm_{k}_{t}_{l}R', IMG(T) + [('Pxl64f*', 'value')] + hint,
                                 f'pxl::measure::norm<{tl}>', 'NST'))
                two = [(f'const {T}*', 'src1'), ('int', 'src1Step'), (f'const {T}*', 'src2'), ('int', 'src2Step'),
                       ('PxlSize', 'roi'), ('Pxl64f*', 'value')] + hint
                out.append(entry(f'pxliNormDiff_{k}_{t}_{l}R', two, f'pxl::measure::normDiff<{tl}>', 'NST'))
                out.append(entry(f'pxliNormRel_{k}_{t}_{l}R', two, f'pxl::measure::normRel<{tl}>', 'NST'))
    out.append(entry('pxliNorm_Inf_32s_C1R', IMG('Pxl32s') + [('Pxl64f*', 'value')],
                     'pxl::measure::norm<Pxl32s, pxl::Lay::C1, pxl::measure::Kind::Inf>', 'NST'))
    return out


def histograms():
    out = []
    for t in ('8u', '16s', '16u', '32f'):
        T = CTYPE[t]
        Lv = 'Pxl32f' if t == '32f' else 'Pxl32s'
        for l in LAYS:
            if l == 'C1':
                args = IMG(T) + [('Pxl32s*', 'hist'), (f'const {Lv}*', 'levels'), ('int', 'nLevels')]
                fn = f'pxl::measure::histogramRangeC1<{T}>'
                order, sweep = 'NST', {'nLevels': '2'}
            else:
                args = IMG(T) + [('Pxl32s* const*', 'hist'), (f'const {Lv}* const*', 'levels'),
                                 ('const int*', 'nLevels')]
                fn = f'pxl::measure::histogramRange<{T}, pxl::Lay::{l}>'
                # Level counts are checked after the pointers and before the
                # size: with good counts the sweep sees its own order.
                order, sweep = 'NST', {'nLevels': 'kSweepLevelCounts'}
            out.append(entry(f'pxliHistogramRange_{t}_{l}R', args, fn, order, sweep))
    for t in ('8u', '16s', '16u'):
        T = CTYPE[t]
        for l in LAYS:
            if l == 'C1':
                args = IMG(T) + [('Pxl32s*', 'hist'), ('Pxl32s*', 'levels'), ('int', 'nLevels'),
                                 ('Pxl32s', 'lowerLevel'), ('Pxl32s', 'upperLevel')]
                fn = f'pxl::measure::histogramEvenC1<{T}>'
                order, sweep = 'NST', {'nLevels': '2', 'lowerLevel': '0', 'upperLevel': '256'}
            else:
                args = IMG(T) + [('Pxl32s* const*', 'hist'), ('Pxl32s* const*', 'levels'), ('const int*', 'nLevels'),
                                 ('const Pxl32s*', 'lowerLevel'), ('const Pxl32s*', 'upperLevel')]
                fn = f'pxl::measure::histogramEven<{T}, pxl::Lay::{l}>'
                order, sweep = 'NST', {'nLevels': 'kSweepLevelCounts', 'lowerLevel': 'kSweepLowerLevels',
                                       'upperLevel': 'kSweepUpperLevels'}
            out.append(entry(f'pxliHistogramEven_{t}_{l}R', args, fn, order, sweep))
    return out


FAMILIES = [
    Custom('pxliSum, pxliMean, pxliMin, pxliMax, pxliMinMax, pxliMinIndx, pxliMaxIndx, pxliCountInRange',
           'measure/pisum', reductions(),
           doc='per-channel results; 32f hint 2 takes the accurate route'),
    Custom('pxliNorm, pxliNormDiff, pxliNormRel', 'measure/pinorm', norms(),
           doc='Inf, L1, L2; NormRel warns (+6) on a zero denominator'),
    Custom('pxliHistogramRange, pxliHistogramEven', 'measure/pihist', histograms(),
           doc='bin k counts levels[k] <= x < levels[k + 1]'),
]
