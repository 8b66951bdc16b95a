"""Filters with the caller's kernel: Filter, FilterRow, FilterColumn (an
integer kernel with a divisor in 8u and 16s, a float kernel in 32f) and their
float-kernel ...32f families of 8u and 16s. True convolution: the kernel is
flipped."""
from pxlreg import image

FILE = 'filter/pifilter'
NS = 'pxl::filter::'
SWEEP = {'kernel': '(const void*)a.value', 'kernelSize': 'PxlSize{3, 3}', 'anchor': 'PxlPoint{1, 1}',
         'divisor': '1', 'kernelLength': '3', 'xAnchor': '1', 'yAnchor': '1'}


def fam(stem, types, impl, extra, doc=''):
    sweep = dict(SWEEP)
    sweep['kernel'] = f'({extra[0][0]})a.value'
    return image(stem, shape='unary', types=types, layouts='C1 C3 C4 AC4', desc='R', impl=impl, file=FILE,
                 extra=extra, sweep=sweep, order='NST', doc=doc)


IK, FK = ('const Pxl32s*', 'kernel'), ('const Pxl32f*', 'kernel')
TWO = [('PxlSize', 'kernelSize'), ('PxlPoint', 'anchor')]
DIV = [('Pxl32s', 'divisor')]
FAMILIES = []
for stem, dir_, anchor in [('Filter', None, None), ('FilterRow', 'Row', 'xAnchor'),
                           ('FilterColumn', 'Column', 'yAnchor')]:
    shape = TWO if dir_ is None else [('Pxl32s', 'kernelLength'), ('Pxl32s', anchor)]
    fi = NS + ('filterI<{T}, pxl::Lay::{L}>' if dir_ is None else f'filter1I<{NS}Dir::{dir_}, {{T}}, pxl::Lay::{{L}}>')
    ff = NS + ('filterF<{T}, pxl::Lay::{L}>' if dir_ is None else f'filter1F<{NS}Dir::{dir_}, {{T}}, pxl::Lay::{{L}}>')
    FAMILIES += [
        fam(stem, '8u 16s', fi, [IK] + shape + DIV, doc='integer kernel / divisor (16s through float taps)'),
        fam(stem, '32f', ff, [FK] + shape),
        fam(stem + '32f', '8u 16s', ff, [FK] + shape, doc='float kernel, rounded to the nearest, saturated'),
    ]
