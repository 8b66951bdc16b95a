"""Bit operations on samples: And, Or, Xor, their constant forms, Not, shifts."""
from pxlreg import Family, image

FILE = 'point/pilogic'
LAY = 'C1 C3 C4 AC4'


class CountFamily(Family):
    """A constant form whose constant is a shift count (Pxl32u), not a sample."""

    def _base_args(self, S, D, lay, inplace, channel_of_interest):
        args = super()._base_args(S, D, lay, inplace, channel_of_interest)
        count = 'Pxl32u' if lay == 'C1' else 'const Pxl32u*'
        return [(count, n) if n == 'value' else (t, n) for t, n in args]


def impl(tmpl, *targs):
    return 'pxl::point::' + tmpl + '<' + ', '.join(targs + ('{T}', 'pxl::Lay::{L}')) + '>'


FAMILIES = []
for stem in ('And', 'Or', 'Xor'):
    op = 'pxl::point::Op' + stem
    sym = {'And': '&', 'Or': '|', 'Xor': '^'}[stem]
    FAMILIES += [
        image(stem, shape='binary', types='8u 16u 32s', layouts=LAY, desc='R IR',
              impl=impl('logicImages', op), file=FILE, order='NTS',
              doc=f'dst = src1 {sym} src2; AC4 leaves the alpha of dst'),
        image(stem + 'C', shape='const', types='8u 16u 32s', layouts=LAY, desc='R IR',
              impl=impl('logicConst', op), file=FILE, order='NTS',
              doc=f'dst = src {sym} value (one constant per channel)'),
    ]
FAMILIES += [
    image('Not', shape='unary', types='8u', layouts=LAY, desc='R IR', impl=impl('notImage'), file=FILE,
          order='NTS', doc='dst = ~src'),
    CountFamily('pxli', 'LShiftC', shape='const', types='8u 16u 32s', layouts=LAY, desc='R IR',
                impl=impl('shiftConst', 'true'), file=FILE, order='NTS',
                doc='dst = src << value (a count per channel); counts from the sample width on give 0'),
    CountFamily('pxli', 'RShiftC', shape='const', types='8u 8s 16u 16s 32s', layouts=LAY, desc='R IR',
                impl=impl('shiftConst', 'false'), file=FILE, order='NTS',
                doc='dst = src >> value; arithmetic for signed samples, where counts past 31 act as 31'),
]
