"""Scaled arithmetic: Add, Sub and their constant forms."""
from pxlreg import image, vector

FAMILIES = []

for stem, file in (('Add', 'arith/piadd'), ('Sub', 'arith/pisub')):
    op = f'pxl::arith::Op{stem}'
    bin_impl = 'pxl::arith::imageBinary<' + op + ', {T}, pxl::Lay::{L}>'
    con_impl = 'pxl::arith::imageConst<' + op + ', {T}, pxl::Lay::{L}>'
    doc_bin = ('src1 + src2' if stem == 'Add' else 'src2 - src1 (in place: srcDst - src)') + \
        ', scaled by 2^-scale, rounded to nearest even and saturated'
    doc_con = ('src + value' if stem == 'Add' else 'src - value') + ', scaled like ' + stem
    # Two-image C3 and C4 members hand over to C1 after looking at the width.
    for shape, impl, st, doc, folds in (('binary', bin_impl, stem, doc_bin, 'C3 C4'),
                                        ('const', con_impl, stem + 'C', doc_con, '')):
        FAMILIES += [
            image(st, shape=shape, types='8u 16u 16s', layouts='C1 C3 C4 AC4', desc='RSfs IRSfs',
                  impl=impl, file=file, doc=doc, order='NS', folds=folds),
            image(st, shape=shape, types='32f', layouts='C1 C3 C4 AC4', desc='R IR', impl=impl, file=file,
                  order='NS', folds=folds),
            image(st, shape=shape, types='16sc 32sc', layouts='C1 C3 AC4', desc='RSfs IRSfs', impl=impl, file=file,
                  order='NST', folds=folds),
            image(st, shape=shape, types='32fc', layouts='C1 C3 AC4', desc='R IR', impl=impl, file=file,
                  order='NST', folds=folds),
        ]
    vbin = 'pxl::arith::vectorBinary<' + op + ', {T}>'
    vcon = 'pxl::arith::vectorConst<' + op + ', {T}>'
    FAMILIES += [
        vector(stem, shape='binary', types='16s 32s 16sc 32sc', desc='Sfs, ISfs', impl=vbin, file=file,
               doc=doc_bin, order='NS'),
        vector(stem, shape='binary', types='32f 32fc', desc=', I', impl=vbin, file=file, order='NS'),
        vector(stem + 'C', shape='const', types='16sc 32sc', desc='Sfs, ISfs', impl=vcon, file=file, doc=doc_con, order='NS'),
        vector(stem + 'C', shape='const', types=('32f 32fc' if stem == 'Sub' else '32fc'), desc=', I',
               impl=vcon, file=file, order='NS'),
    ]
