"""Morphology and rank filters: Erode and Dilate over a byte mask, the 3x3
square forms, FilterMin and FilterMax over any rectangle."""
from pxlreg import image

FILE = 'filter/pimorph'
NS = 'pxl::filter::'
ALL4 = 'C1 C3 C4 AC4'
MASKED = [('const Pxl8u*', 'mask'), ('PxlSize', 'maskSize'), ('PxlPoint', 'anchor')]
GOOD = {'mask': '(const Pxl8u*)a.value', 'maskSize': 'PxlSize{3, 3}', 'anchor': 'PxlPoint{1, 1}'}

FAMILIES = []
for stem, mx in (('Erode', 'false'), ('Dilate', 'true')):
    impl = NS + 'morph<' + mx + ', {T}, pxl::Lay::{L}>'
    FAMILIES += [
        image(stem, shape='unary', types='8u 32f', layouts=ALL4, desc='R', file=FILE, impl=impl, extra=MASKED,
              sweep=GOOD, order='NTS', doc='over the non-zero cells of the mask'),
        image(stem, shape='unary', types='8u 32f', layouts='C1 C3 AC4', desc='IR', file=FILE, impl=impl,
              extra=MASKED, sweep=GOOD, order='NTS'),
        image(stem + '3x3', shape='unary', types='8u 32f', layouts=ALL4, desc='R IR', file=FILE,
              impl=NS + 'square3<' + mx + ', {T}, pxl::Lay::{L}>', order='NTS', doc='all nine cells'),
    ]
for stem, mx in (('FilterMin', 'false'), ('FilterMax', 'true')):
    FAMILIES.append(image(stem, shape='unary', types='8u 16s 32f', layouts=ALL4, desc='R', file=FILE,
                          impl=NS + 'rankFilter<' + mx + ', {T}, pxl::Lay::{L}>',
                          extra=[('PxlSize', 'maskSize'), ('PxlPoint', 'anchor')],
                          sweep={'maskSize': 'PxlSize{3, 3}', 'anchor': 'PxlPoint{1, 1}'}, order='NST',
                          doc='over the whole rectangle'))
