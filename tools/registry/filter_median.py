"""Median filters: channel-wise by window shape, and the vector median of
colour pixels under the L1 distance."""
from pxlreg import image

FILE = 'filter/pimedian'
NS = 'pxl::filter::'
MASK = [('Pxl32s', 'mask')]


def fam(stem, types, layouts, impl, extra, sweep, doc=''):
    return image(stem, shape='unary', types=types, layouts=layouts, desc='R', file=FILE,
                 impl=NS + impl + '<{T}, pxl::Lay::{L}>', extra=extra, sweep=sweep, order='NST', doc=doc)


FAMILIES = [
    fam('FilterMedian', '8u 16s', 'C1 C3 C4 AC4', 'median', [('PxlSize', 'maskSize'), ('PxlPoint', 'anchor')],
        {'maskSize': 'PxlSize{3, 3}', 'anchor': 'PxlPoint{1, 1}'}, doc='odd width and height, any anchor'),
    fam('FilterMedianHoriz', '8u 16s', 'C1 C3 C4 AC4', 'medianHoriz', MASK, {'mask': '31'}, doc='mask 31 or 51'),
    fam('FilterMedianVert', '8u 16s', 'C1 C3 C4 AC4', 'medianVert', MASK, {'mask': '13'}, doc='mask 13 or 15'),
    fam('FilterMedianCross', '8u 16s', 'C1 C3 AC4', 'medianCross', MASK, {'mask': '33'}, doc='mask 33 or 55'),
    fam('FilterMedianColor', '8u 16s 32f', 'C3 AC4', 'medianColor', MASK, {'mask': '33'},
        doc='vector median, L1 distance, ties to the first in column order'),
]
