"""Affine family: the geometry queries of a source rectangle under a 2 x 3
transform, a rotation or a shear."""
from pxlreg import Custom

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
