"""Box filter (the mean over any rectangle, out of place and in place) and
the one-dimensional window sums with float output."""
from pxlreg import image

FILE = 'filter/piblur'
NS = 'pxl::filter::'
ALL4 = 'C1 C3 C4 AC4'

FAMILIES = [
    image('FilterBox', shape='unary', types='8u 16s 32f', layouts=ALL4, desc='R IR', file=FILE,
          impl=NS + 'filterBox<{T}, pxl::Lay::{L}>', extra=[('PxlSize', 'maskSize'), ('PxlPoint', 'anchor')],
          sweep={'maskSize': 'PxlSize{3, 3}', 'anchor': 'PxlPoint{1, 1}'}, order='NTS',
          doc='8u: by area and layout, truncated (C1, C4), rounded (C3, AC4), nearest /9 at 3x3'),
]
# The window sums examine no size and no step: the sweep's order 'N' checks
# the null pointers alone.
for stem, fn in (('SumWindowRow', 'sumWindowRow'), ('SumWindowColumn', 'sumWindowColumn')):
    FAMILIES.append(image(stem, shape='unary', types='8u32f 16s32f', layouts='C1 C3 C4', desc='R', file=FILE,
                          impl=NS + fn + '<{S}, pxl::Lay::{L}>', extra=[('Pxl32s', 'maskSize'), ('Pxl32s', 'anchor')],
                          sweep={'maskSize': '3', 'anchor': '1'}, order='N', doc='float sums of maskSize samples'))
