"""Convert and Scale: type conversion of images and vectors.

Convert keeps the value and saturates; Scale maps the whole range of one
type onto the whole range of the other. The two bit forms place the bit
offset in the middle of their argument lists, so they are written out.
"""
from pxlreg import Custom, image, vector

LAYOUTS = 'C1 C3 C4 AC4'
CONVERT = 'pxl::move::convertImage<{S}, {D}, pxl::Lay::{L}>'

FAMILIES = [
    image('Convert', shape='unary',
          types='8u16u 16u8u 8u16s 16s8u 8u32f 16s32f 8s32f 16u32f 8u32s 32s8u 8s32s 32s8s 16u32s',
          layouts=LAYOUTS, desc='R', impl=CONVERT, file='move/piconvert', order='NST',
          doc='the value in the destination type, saturated'),
    image('Convert', shape='unary', types='32f8u 32f16s 32f8s 32f16u', layouts=LAYOUTS, desc='R',
          extra=[('int', 'roundMode')], impl=CONVERT, file='move/piconvert', order='NST',
          doc='clamped to the destination, then rounded: pxlRndNear to nearest even, else truncated'),
    Custom('pxliConvert', 'move/pibits', [
        ('pxliConvert_1u8u_C1R', 'PxlStatus',
         [('const Pxl8u*', 'src'), ('int', 'srcStep'), ('int', 'srcBitOffset'), ('Pxl8u*', 'dst'),
          ('int', 'dstStep'), ('PxlSize', 'roi')],
         'pxl::move::convertBitsToBytes(src, srcStep, srcBitOffset, dst, dstStep, roi)'),
        ('pxliConvert_8u1u_C1R', 'PxlStatus',
         [('const Pxl8u*', 'src'), ('int', 'srcStep'), ('Pxl8u*', 'dst'), ('int', 'dstStep'),
          ('int', 'dstBitOffset'), ('PxlSize', 'roi'), ('Pxl8u', 'threshold')],
         'pxl::move::convertBytesToBits(src, srcStep, dst, dstStep, dstBitOffset, roi, threshold)'),
    ], doc='one bit per pixel, most significant bit first: set bits are 255; '
           'bytes to bits by error diffusion'),
    image('Scale', shape='unary', types='8u16u 8u16s 8u32s', layouts=LAYOUTS, desc='R',
          impl='pxl::move::scaleFromBytes<{S}, {D}, pxl::Lay::{L}>', file='move/piscale', order='NST',
          doc='the 8u range onto the whole destination range'),
    # The range check comes before the pointers: no sweep order.
    image('Scale', shape='unary', types='8u32f 32f8u', layouts=LAYOUTS, desc='R',
          extra=[('Pxl32f', 'vMin'), ('Pxl32f', 'vMax')],
          impl='pxl::move::scaleRange<{S}, {D}, pxl::Lay::{L}>', file='move/piscale',
          doc='the 8u range onto [vMin, vMax] and back; pxlStsScaleRange unless vMax > vMin'),
    image('Scale', shape='unary', types='16u8u 16s8u 32s8u', layouts=LAYOUTS, desc='R',
          extra=[('int', 'hint')], impl='pxl::move::scaleToBytes<{S}, pxl::Lay::{L}>',
          file='move/piscale', order='NST',
          doc='the whole source range onto 8u: integer shifts, or x*a+b with pxlAlgHintAccurate'),
    vector('Convert', shape='unary', types='8u32f 32s32f 32s64f', desc='',
           impl='pxl::move::convertVector<{S}, {D}>', file='move/psconvert', order='NS',
           doc='the value in the destination type'),
    vector('Convert', shape='unary', types='32f8u 32f16s 32f32s 64f32s', desc='Sfs',
           extra=[('int', 'roundMode')], impl='pxl::move::convertVectorSfs<{S}, {D}>',
           file='move/psconvert', order='NS',
           doc='times 2^-scale, clamped, rounded by roundMode'),
]
