"""8x8 DCT and zigzag: one block per call, argument lists written out."""
from pxlreg import Custom

NS = 'pxl::transform::'
S16, S16c, U8, U8c, F, Fc = 'Pxl16s*', 'const Pxl16s*', 'Pxl8u*', 'const Pxl8u*', 'Pxl32f*', 'const Pxl32f*'


def e(name, args, call):
    return (name, 'PxlStatus', args, NS + call)


SD = [(S16c, 'src'), (S16, 'dst')]
IO = [(S16, 'srcDst')]

FAMILIES = [
    Custom('pxliDCT8x8', 'transform/pidct88f', [
        e('pxliDCT8x8Fwd_16s_C1', SD, 'dctFwd16s(src, dst)'),
        e('pxliDCT8x8Fwd_16s_C1I', IO, 'dctFwd16sI(srcDst)'),
        e('pxliDCT8x8Fwd_16s_C1R', [(S16c, 'src'), ('int', 'srcStep'), (S16, 'dst')],
          'dctFwdStep(src, srcStep, dst)'),
        e('pxliDCT8x8Fwd_8u16s_C1R', [(U8c, 'src'), ('int', 'srcStep'), (S16, 'dst')],
          'dctFwdStep(src, srcStep, dst)'),
        e('pxliDCT8x8FwdLS_8u16s_C1R', [(U8c, 'src'), ('int', 'srcStep'), (S16, 'dst'), ('Pxl16s', 'value')],
          'dctFwdLS(src, srcStep, dst, value)'),
        e('pxliDCT8x8Inv_16s_C1', SD, 'dctInv16s(src, dst)'),
        e('pxliDCT8x8Inv_16s_C1I', IO, 'dctInv16s(srcDst, srcDst)'),
        e('pxliDCT8x8Inv_16s_C1R', [(S16c, 'src'), (S16, 'dst'), ('int', 'dstStep')],
          'dctInv16sR(src, dst, dstStep)'),
        e('pxliDCT8x8Inv_16s8u_C1R', [(S16c, 'src'), (U8, 'dst'), ('int', 'dstStep')],
          'dctInv8u(src, dst, dstStep)'),
        e('pxliDCT8x8InvLSClip_16s8u_C1R', [(S16c, 'src'), (U8, 'dst'), ('int', 'dstStep'),
                                            ('Pxl16s', 'value'), ('int', 'clipMin'), ('int', 'clipMax')],
          'dctInvLSClip(src, dst, dstStep, value, clipMin, clipMax)'),
        e('pxliDCT8x8Inv_2x2_16s_C1', SD, 'dctInv2x2(src, dst)'),
        e('pxliDCT8x8Inv_4x4_16s_C1', SD, 'dctInv4x4(src, dst)'),
        e('pxliDCT8x8Inv_2x2_16s_C1I', IO, 'dctInv2x2(srcDst, srcDst)'),
        e('pxliDCT8x8Inv_4x4_16s_C1I', IO, 'dctInv4x4(srcDst, srcDst)'),
        e('pxliDCT8x8Fwd_32f_C1', [(Fc, 'src'), (F, 'dst')], 'dctFloat(src, dst, false)'),
        e('pxliDCT8x8Inv_32f_C1', [(Fc, 'src'), (F, 'dst')], 'dctFloat(src, dst, true)'),
        e('pxliDCT8x8Fwd_32f_C1I', [(F, 'srcDst')], 'dctFloat(srcDst, srcDst, false)'),
        e('pxliDCT8x8Inv_32f_C1I', [(F, 'srcDst')], 'dctFloat(srcDst, srcDst, true)'),
    ], doc='8x8 discrete cosine transform of one block'),
    Custom('pxliZigzag', 'transform/pidct88f', [
        e('pxliZigzagFwd8x8_16s_C1', SD, 'zigzag(src, dst, false)'),
        e('pxliZigzagInv8x8_16s_C1', SD, 'zigzag(src, dst, true)'),
    ], doc='zigzag reorder of an 8x8 block'),
]
