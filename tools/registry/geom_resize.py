"""Resize: argument lists written out, since the source is an image origin
with a ROI inside it while the destination already points at its region."""
from pxlreg import CTYPE, Custom

TYPES = '8u 16u 32f'.split()
# layout -> (pixel stride, samples processed, planes)
FORMS = {'C1': (1, 1, 0), 'C3': (3, 3, 0), 'C4': (4, 4, 0), 'AC4': (4, 3, 0), 'P3': (1, 1, 3), 'P4': (1, 1, 4)}


def entry(t, f):
    T = CTYPE[t]
    px, nc, planes = FORMS[f]
    src = f'const {T}* const*' if planes else f'const {T}*'
    dst = f'{T}* const*' if planes else f'{T}*'
    args = [(src, 'src'), ('PxlSize', 'srcSize'), ('int', 'srcStep'), ('PxlRect', 'srcRoi'),
            (dst, 'dst'), ('int', 'dstStep'), ('PxlSize', 'dstRoiSize'), ('double', 'xFactor'),
            ('double', 'yFactor'), ('int', 'interpolation')]
    impl = f'pxl::geom::resizeP<{T}, {planes}>' if planes else f'pxl::geom::resizeC<{T}, {px}, {nc}>'
    call = f'{impl}({", ".join(n for _, n in args)})'
    # Checks: null pointers (planes with them), sizes; steps are not examined.
    return (f'pxliResize_{t}_{f}R', 'PxlStatus', args, call, 'NS', SWEEP)


# argument name -> value the bad-argument sweep passes
SWEEP = {'srcSize': 'a.roi', 'srcRoi': 'PxlRect{0, 0, a.roi.width, a.roi.height}', 'dstRoiSize': 'a.roi',
         'xFactor': '1.0', 'yFactor': '1.0', 'interpolation': '2'}


FAMILIES = [
    Custom('pxliResize', 'geom/piresize', [entry(t, f) for t in TYPES for f in FORMS],
           doc='the ROI of src scaled by xFactor, yFactor into dst; modes 1, 2, 4, 8 (area, '
               'factors at most 1), 16 (Lanczos, three lobes)'),
]
