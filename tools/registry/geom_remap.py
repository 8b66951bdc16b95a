"""Remap: the destination region filled through two float position maps."""
from pxlreg import CTYPE, Custom

TYPES = '8u 16u 32f'.split()
# layout -> (pixel stride, samples written, planes), as for resize
FORMS = {'C1': (1, 1, 0), 'C3': (3, 3, 0), 'C4': (4, 4, 0), 'AC4': (4, 3, 0), 'P3': (1, 1, 3), 'P4': (1, 1, 4)}


def entry(t, f):
    T = CTYPE[t]
    px, nc, planes = FORMS[f]
    src = f'const {T}* const*' if planes else f'const {T}*'
    dst = f'{T}* const*' if planes else f'{T}*'
    args = [(src, 'src'), ('PxlSize', 'srcSize'), ('int', 'srcStep'), ('PxlRect', 'srcRoi'),
            ('const Pxl32f*', 'xMap'), ('int', 'xMapStep'), ('const Pxl32f*', 'yMap'), ('int', 'yMapStep'),
            (dst, 'dst'), ('int', 'dstStep'), ('PxlSize', 'dstRoiSize'), ('int', 'interpolation')]
    impl = f'pxl::geom::remapP<{T}, {planes}>' if planes else f'pxl::geom::remapC<{T}, {px}, {nc}>'
    # Checks: null pointers, sizes, mode, steps, then the planes ('P').
    return (f'pxliRemap_{t}_{f}R', 'PxlStatus', args, f'{impl}({", ".join(n for _, n in args)})', 'NSTP',
            SWEEP)


# argument name -> value the bad-argument sweep passes (the maps are images)
SWEEP = {'srcSize': 'a.roi', 'srcRoi': 'PxlRect{0, 0, a.roi.width, a.roi.height}', 'dstRoiSize': 'a.roi',
         'interpolation': '2'}


FAMILIES = [
    Custom('pxliRemap', 'geom/piremap', [entry(t, f) for t in TYPES for f in FORMS],
           doc='dst(x, y) = src at (xMap(x, y), yMap(x, y)); positions outside the source ROI '
               'leave dst as it was; modes 1, 2, 4'),
]
