"""Threshold: clip to a limit, replace by a value, replace on both sides."""
from pxlreg import CTYPE, image

FILE = 'point/pithresh'
TYPES = ('8u', '16s', '32f')


def impl(tmpl, *targs):
    return 'pxl::point::' + tmpl + '<' + ', '.join(targs + ('{T}', 'pxl::Lay::{L}')) + '>'


# (qualifier, layouts, limit names, relation argument, implementation, doc)
FORMS = [
    ('', 'C1 C3 AC4', ['threshold'], True, impl('threshold'),
     'relation 4: min(src, threshold); 0: max(src, threshold); a NaN sample gives the threshold'),
    ('GT', 'C1 C3 AC4', ['threshold'], False, impl('thresholdFixed', 'pxlRelGreater'), 'min(src, threshold)'),
    ('LT', 'C1 C3 AC4', ['threshold'], False, impl('thresholdFixed', 'pxlRelLess'), 'max(src, threshold)'),
    ('Val', 'C1 C3 AC4', ['threshold', 'value'], True, impl('thresholdVal'),
     'relation 4: value where src > threshold (NaN kept); 0: value where src < threshold (NaN replaced); '
     'the relation is checked first of all'),
    ('GTVal', 'C1 C3 C4 AC4', ['threshold', 'value'], False, impl('thresholdValFixed', 'pxlRelGreater'),
     'value where src > threshold'),
    ('LTVal', 'C1 C3 C4 AC4', ['threshold', 'value'], False, impl('thresholdValFixed', 'pxlRelLess'),
     'value where src < threshold'),
    ('LTValGTVal', 'C1 C3 AC4', ['thresholdLT', 'valueLT', 'thresholdGT', 'valueGT'], False, impl('thresholdBoth'),
     'valueLT below thresholdLT, valueGT above thresholdGT (NaN gives valueLT); thresholdGT below '
     'thresholdLT in any channel is refused'),
]

FAMILIES = []
for qual, layouts, limits, relation, imp, doc in FORMS:
    for i, t in enumerate(TYPES):
        for lays in ([l for l in layouts.split() if l == 'C1'], [l for l in layouts.split() if l != 'C1']):
            T = CTYPE[t]
            ctype = T if lays == ['C1'] else f'const {T}*'
            extra = [(ctype, n) for n in limits] + ([('Pxl32s', 'relation')] if relation else [])
            FAMILIES.append(image('Threshold', qual=qual, shape='unary', types=t, layouts=' '.join(lays),
                                  desc='R IR', extra=extra, impl=imp, file=FILE,
                                  doc=doc if i == 0 and lays == ['C1'] else ''))
