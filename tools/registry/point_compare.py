"""Compare: a one-channel 8u mask of where a relation holds."""
from pxlreg import Family

FILE = 'point/picomp'
LAY = 'C1 C3 C4 AC4'


class MaskFamily(Family):
    """Whatever the source, the destination is one 8u sample per pixel."""

    def _base_args(self, S, D, lay, inplace, channel_of_interest):
        args = super()._base_args(S, D, lay, inplace, channel_of_interest)
        return [('Pxl8u*', n) if n == 'dst' else (t, n) for t, n in args]


def impl(tmpl):
    return 'pxl::point::' + tmpl + '<{T}, pxl::Lay::{L}>'


REL = [('Pxl32s', 'relation')]
EPS = [('Pxl32f', 'eps')]
FAMILIES = [
    MaskFamily('pxli', 'Compare', shape='binary', types='8u 16s 32f', layouts=LAY, desc='R', extra=REL,
               impl=impl('compareImages'), file=FILE,
               doc='dst = 255 where src1 (relation) src2 holds in every channel (AC4: the colour ones), else 0; '
                   'a relation outside 0..4 writes nothing'),
    MaskFamily('pxli', 'CompareC', shape='const', types='8u 16s 32f', layouts=LAY, desc='R', extra=REL,
               impl=impl('compareConst'), file=FILE,
               doc='dst = 255 where src (relation) value holds in every channel; >= is "not <" and > "not <="'),
    MaskFamily('pxli', 'CompareEqualEps', shape='binary', types='32f', layouts=LAY, desc='R', extra=EPS,
               impl=impl('compareEps'), file=FILE,
               doc='dst = 255 where |src1 - src2| <= eps in every channel; eps below 0 or NaN is refused'),
    MaskFamily('pxli', 'CompareEqualEpsC', shape='const', types='32f', layouts=LAY, desc='R', extra=EPS,
               impl=impl('compareEpsConst'), file=FILE, doc='dst = 255 where |src - value| <= eps in every channel'),
]
