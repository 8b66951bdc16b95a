"""Fixed-kernel filters: Prewitt, Sobel, Scharr, Roberts, Laplace, Gauss,
Hipass, Lowpass and Sharpen. The kernels are tables in src/filter/fixed.h."""
from pxlreg import image

FILE = 'filter/pifixed'
NS = 'pxl::filter::'
K = NS + 'k::'
MASK = [('Pxl32s', 'mask')]
SWEEP = {'mask': '33'}


def plain(kernel):
    return f'{NS}fixed3<{K}{kernel}, {{S}}, {{D}}, pxl::Lay::{{L}}>'


def masked(k3, pipe, k5, strict):
    return (f'{NS}fixedMask<{K}{k3}, {NS}Pipe::{pipe}, {K}{k5}, {"true" if strict else "false"}, '
            f'{{S}}, {{D}}, pxl::Lay::{{L}}>')


def fam(stem, types, layouts, impl, mask=False, doc=''):
    return image(stem, shape='unary', types=types, layouts=layouts, desc='R', impl=impl, file=FILE,
                 extra=MASK if mask else (), sweep=SWEEP if mask else None, order='NST', doc=doc)


ALL4 = 'C1 C3 C4 AC4'
FAMILIES = [
    fam('FilterPrewittHoriz', '8u 16s 32f', ALL4, plain('PrewittHoriz'), doc='row below minus row above'),
    fam('FilterPrewittVert', '8u 16s 32f', ALL4, plain('PrewittVert'), doc='left column minus right column'),
    fam('FilterSobelHoriz', '8u 16s 32f', ALL4, plain('SobelHoriz'), doc='row below minus row above, 1 2 1'),
    fam('FilterSobelVert', '8u 16s 32f', ALL4, plain('SobelVert'), doc='left column minus right column, 1 2 1'),
    fam('FilterSharpen', '8u 16s 32f', ALL4, plain('Sharpen'), doc='(17 s - 3x3 sum) / 8, ties to even'),
    fam('FilterScharrHoriz', '8u16s 8s16s 32f', 'C1', plain('ScharrHoriz'), doc='row below minus row above'),
    fam('FilterScharrVert', '8u16s 8s16s 32f', 'C1', plain('ScharrVert'), doc='right column minus left column'),
]

# The 8-bit to 16s Sobel forms take 33 or 55; the 32f mask forms read 33 as
# 3x3 and any other code as 5x5.
for stem, k3 in [('SobelHoriz', 'SobelHoriz'), ('SobelVert', 'SobelVert'), ('SobelHorizSecond', 'SobelHorizSecond'),
                 ('SobelVertSecond', 'SobelVertSecond'), ('SobelCross', 'SobelCross')]:
    FAMILIES.append(fam('Filter' + stem, '8u16s 8s16s', 'C1', masked(k3, 'Sep5', k3 + '5', True), mask=True,
                        doc='mask 33 or 55'))
    loose = stem in ('SobelHorizSecond', 'SobelVertSecond', 'SobelCross')
    FAMILIES.append(fam('Filter' + stem + ('' if loose else 'Mask'), '32f', 'C1',
                        masked(k3, 'Sep5', k3 + '5', False), mask=True, doc='mask 33 is 3x3, any other 5x5'))

FAMILIES += [
    fam('FilterLaplace', '8u 16s 32f', ALL4, masked('Laplace3', 'Ring5', 'Laplace5', True), mask=True,
        doc='mask 33 or 55'),
    fam('FilterLaplace', '8u16s 8s16s', 'C1', masked('Laplace3', 'Ring5', 'Laplace5', True), mask=True),
    fam('FilterGauss', '8u 16s 32f', ALL4, masked('Gauss3', 'Ring5', 'Gauss5', True), mask=True,
        doc='mask 33 (/16, ties to even) or 55 (/571, nearest)'),
    fam('FilterHipass', '8u 16s 32f', ALL4, masked('Laplace3', 'Hipass5', 'Running5', True), mask=True,
        doc='mask 33 (the Laplace filter) or 55 (25 s - 5x5 sum)'),
    fam('FilterLowpass', '8u 16s 32f', 'C1 C3 AC4', masked('Lowpass3', 'Lowpass5', 'Running5', True), mask=True,
        doc='mask 33 (/9) or 55 (/25), nearest'),
    image('FilterRobertsUp', shape='unary', types='8u 16s 32f', layouts='C1 C3 AC4', desc='R', file=FILE,
          impl=NS + 'roberts<1, {T}, pxl::Lay::{L}>', order='NST', doc='s(x, y) - s(x+1, y-1), saturated'),
    image('FilterRobertsDown', shape='unary', types='8u 16s 32f', layouts='C1 C3 AC4', desc='R', file=FILE,
          impl=NS + 'roberts<-1, {T}, pxl::Lay::{L}>', order='NST', doc='s(x, y) - s(x-1, y-1), saturated'),
]
