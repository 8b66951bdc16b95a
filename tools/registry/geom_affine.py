"""Affine family: the geometry queries of a source rectangle under a 2 x 3
transform, a rotation or a shear."""
from pxlreg import CTYPE, Custom

Q = 'double (*)[2]'
CQ = 'const double (*)[2]'
C = 'const double (*)[3]'
R = ('PxlRect', 'srcRoi')
D = 'double'


def q(name, args, impl):
    return (name, 'PxlStatus', args, f'pxl::geom::{impl}({", ".join(n for _, n in args)})')


FAMILIES = [
    Custom('pxliAffineQueries', 'geom/piwarpa', [
        q('pxliGetAffineQuad', [R, (Q, 'quad'), (C, 'coeffs')], 'affineQuad'),
        q('pxliGetAffineBound', [R, (Q, 'bound'), (C, 'coeffs')], 'affineBound'),
        q('pxliGetAffineTransform', [R, (CQ, 'quad'), ('double (*)[3]', 'coeffs')], 'affineTransform'),
        q('pxliGetRotateQuad', [R, (Q, 'quad'), (D, 'angle'), (D, 'xShift'), (D, 'yShift')], 'rotateQuad'),
        q('pxliGetRotateBound', [R, (Q, 'bound'), (D, 'angle'), (D, 'xShift'), (D, 'yShift')], 'rotateBound'),
        ('pxliGetRotateShift', 'PxlStatus',
         [(D, 'xCenter'), (D, 'yCenter'), (D, 'angle'), ('double*', 'xShift'), ('double*', 'yShift')],
         'pxl::geom::rotateShift(xCenter, yCenter, angle, xShift, yShift, false)'),
        ('pxliAddRotateShift', 'PxlStatus',
         [(D, 'xCenter'), (D, 'yCenter'), (D, 'angle'), ('double*', 'xShift'), ('double*', 'yShift')],
         'pxl::geom::rotateShift(xCenter, yCenter, angle, xShift, yShift, true)'),
        q('pxliGetShearQuad', [R, (Q, 'quad'), (D, 'xShear'), (D, 'yShear'), (D, 'xShift'), (D, 'yShift')],
          'shearQuad'),
        q('pxliGetShearBound', [R, (Q, 'bound'), (D, 'xShear'), (D, 'yShear'), (D, 'xShift'), (D, 'yShift')],
          'shearBound'),
    ], doc='quadrangles (top-left, top-right, bottom-right, bottom-left) and bounds '
           '((min x, min y), (max x, max y)) of a source rectangle; angles in degrees'),
]

TYPES = '8u 16u 32f'.split()
# layout -> (pixel stride, samples written, planes)
FORMS = {'C1': (1, 1, 0), 'C3': (3, 3, 0), 'C4': (4, 4, 0), 'AC4': (4, 3, 0), 'P3': (1, 1, 3), 'P4': (1, 1, 4)}
# argument name -> value the bad-argument sweep passes (a transform that
# maps the ROI onto itself, or nearly so, and a valid mode)
SWEEP = {'srcSize': 'a.roi', 'srcRoi': 'PxlRect{0, 0, a.roi.width, a.roi.height}',
         'dstRoi': 'PxlRect{0, 0, a.roi.width, a.roi.height}', 'interpolation': '2',
         'coeffs': 'kSweepAffine', 'srcQuad': 'kSweepQuad', 'dstQuad': 'kSweepQuad',
         'angle': '0.0', 'xShift': '0.25', 'yShift': '0.0', 'xCenter': '3.0', 'yCenter': '2.0',
         'xShear': '0.0', 'yShear': '0.0'}
OPS = [
    ('WarpAffine', [(C, 'coeffs')], 'warpAffineX'),
    ('WarpAffineBack', [(C, 'coeffs')], 'warpAffineBackX'),
    ('WarpAffineQuad', None, 'warpAffineQuadX'),
    ('Rotate', [(D, 'angle'), (D, 'xShift'), (D, 'yShift')], 'rotateX'),
    ('RotateCenter', [(D, 'angle'), (D, 'xCenter'), (D, 'yCenter')], 'rotateCenterX'),
    ('Shear', [(D, 'xShear'), (D, 'yShear'), (D, 'xShift'), (D, 'yShift')], 'shearX'),
]


def warp(op, extra, impl, t, f):
    T = CTYPE[t]
    px, nc, planes = FORMS[f]
    src = f'const {T}* const*' if planes else f'const {T}*'
    dst = f'{T}* const*' if planes else f'{T}*'
    head = [(src, 'src'), ('PxlSize', 'srcSize'), ('int', 'srcStep'), ('PxlRect', 'srcRoi')]
    tail = [(dst, 'dst'), ('int', 'dstStep'), ('PxlRect', 'dstRoi')]
    if extra is None:
        args = head + [(CQ, 'srcQuad')] + tail + [(CQ, 'dstQuad'), ('int', 'interpolation')]
    else:
        args = head + tail + extra + [('int', 'interpolation')]
    call = f'pxl::geom::{impl}<{T}, {px}, {nc}, {planes}>({", ".join(n for _, n in args)})'
    # Checks: null pointers, sizes, steps, mode, then the planes ('P').
    return (f'pxli{op}_{t}_{f}R', 'PxlStatus', args, call, 'NSTP', SWEEP)


FAMILIES += [
    Custom(f'pxli{op}', 'geom/piwarpa', [warp(op, extra, impl, t, f) for t in TYPES for f in FORMS],
           doc=doc)
    for (op, extra, impl), doc in zip(OPS, [
        'dst over the image of srcRoi through the forward transform coeffs, by spans; '
        'modes 1, 2, 4, or-ed with pxlInterSmoothEdge',
        'the same with coeffs mapping dst to src; the smoothing flag has no effect',
        'srcQuad of src onto dstQuad of dst (a fourth vertex off the parallelogram gives +28)',
        'rotation by angle degrees (counter-clockwise on screen) then the shift; right angles '
        'with whole shifts move pixels exactly',
        'rotation by angle degrees about (xCenter, yCenter)',
        'x + xShear * y + xShift, yShear * x + y + yShift',
    ])
]
