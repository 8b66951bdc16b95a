"""Multiply, divide and fixed-scale multiply."""
from pxlreg import image, vector

FAMILIES = []

MUL = 'pxl::arith::OpMul'
_bin = 'pxl::arith::imageBinary<' + MUL + ', {T}, pxl::Lay::{L}>'
_con = 'pxl::arith::imageConst<' + MUL + ', {T}, pxl::Lay::{L}>'
_div = 'pxl::arith::imageDiv<{T}, pxl::Lay::{L}>'
_divc = 'pxl::arith::imageDivC<{T}, pxl::Lay::{L}>'


def _image_family(stem, shape, impl, file, doc, real_order, folds):
    """The 50 members of one family: four real types in C1, C3, C4, AC4 and
    three complex ones in C1, C3, AC4, each in place and not."""
    return [
        image(stem, shape=shape, types='8u 16u 16s', layouts='C1 C3 C4 AC4', desc='RSfs IRSfs', impl=impl,
              file=file, doc=doc, order=real_order, folds=folds),
        image(stem, shape=shape, types='32f', layouts='C1 C3 C4 AC4', desc='R IR', impl=impl, file=file,
              order=real_order, folds=folds),
        image(stem, shape=shape, types='16sc 32sc', layouts='C1 C3 AC4', desc='RSfs IRSfs', impl=impl, file=file,
              order='NST', folds=folds),
        image(stem, shape=shape, types='32fc', layouts='C1 C3 AC4', desc='R IR', impl=impl, file=file,
              order='NST', folds=folds),
    ]


FAMILIES += _image_family('Mul', 'binary', _bin, 'arith/pimul',
                          'src1 * src2, scaled by 2^-scale, rounded to nearest even and saturated', 'NS', 'C3 C4')
FAMILIES += _image_family('MulC', 'const', _con, 'arith/pimul', 'src * value, scaled like Mul', 'NS', '')
# Div looks at steps too; a zero divisor sample is a warning, a zero
# constant of DivC an error.
FAMILIES += _image_family('Div', 'binary', _div, 'arith/pidiv',
                          'src2 / src1 (in place: srcDst / src), scaled; a zero divisor warns', 'NST', 'C3 C4')
FAMILIES += _image_family('DivC', 'const', _divc, 'arith/pidiv',
                          'src / value, scaled; a zero constant is an error', 'NST', '')

_vbin = 'pxl::arith::vectorBinary<' + MUL + ', {T}>'
_vcon = 'pxl::arith::vectorConst<' + MUL + ', {T}>'
_vdiv = 'pxl::arith::vectorDiv<{T}>'
_vdivc = 'pxl::arith::vectorDivC<{T}>'
FAMILIES += [
    vector('Mul', shape='binary', types='16sc 32sc', desc='Sfs, ISfs', impl=_vbin, file='arith/pimul',
           doc='complex src1 * src2, scaled per part', order='NS'),
    vector('Mul', shape='binary', types='32fc', desc=', I', impl=_vbin, file='arith/pimul', order='NS'),
    vector('Mul', shape='binary', types='64fc', desc='I', impl=_vbin, file='arith/pimul', order='NS'),
    vector('MulC', shape='const', types='16sc 32sc', desc='Sfs, ISfs', impl=_vcon, file='arith/pimul',
           doc='src * value, scaled per part', order='NS'),
    vector('MulC', shape='const', types='32f', desc='I', impl=_vcon, file='arith/pimul', order='NS'),
    vector('MulC', shape='const', types='32fc', desc=', I', impl=_vcon, file='arith/pimul', order='NS'),
    vector('MulC', shape='const', types='64fc', desc='I', impl=_vcon, file='arith/pimul', order='NS'),
    vector('Div', shape='binary', types='8u 16s', desc='Sfs', impl=_vdiv, file='arith/pidiv',
           doc='src2 / src1; a zero divisor gives defined values and pxlStsDivByZero', order='NS'),
    vector('Div', shape='binary', types='16sc', desc='Sfs, ISfs', impl=_vdiv, file='arith/pidiv', order='NS'),
    vector('Div', shape='binary', types='32f', desc='', impl=_vdiv, file='arith/pidiv', order='NS'),
    vector('Div', shape='binary', types='32fc 64fc', desc=', I', impl=_vdiv, file='arith/pidiv', order='NS'),
    vector('DivC', shape='const', types='8u 16s', desc='Sfs', impl=_vdivc, file='arith/pidiv',
           doc='src / value; a zero constant gives pxlStsDivByZeroConst', order='NS'),
    vector('DivC', shape='const', types='16sc', desc='Sfs, ISfs', impl=_vdivc, file='arith/pidiv', order='NS'),
    vector('DivC', shape='const', types='32fc', desc=', I', impl=_vdivc, file='arith/pidiv', order='NS'),
]

# Fixed-scale products: steps are checked before sizes.
FAMILIES += [
    image('MulScale', shape='binary', types='8u 16u', layouts='C1 C3 C4 AC4', desc='R IR',
          impl='pxl::arith::imageMulScale<{T}, pxl::Lay::{L}>', file='arith/pimulscale',
          doc='src1 * src2 / max, both fractions of full scale', order='NTS'),
    image('MulCScale', shape='const', types='8u 16u', layouts='C1 C3 C4 AC4', desc='R IR',
          impl='pxl::arith::imageMulCScale<{T}, pxl::Lay::{L}>', file='arith/pimulscale',
          doc='src * value / max', order='NTS'),
]
