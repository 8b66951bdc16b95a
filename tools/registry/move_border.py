"""Whole-image rearrangements: borders around a source, Mirror, Transpose.

The border members take a source ROI that lies inside a larger destination
ROI at (top, left). Their in-place forms get the source's origin and write
the stretches around it, outside the ROI they are handed.
"""
from pxlreg import image

FAMILIES = [
    image('CopyConstBorder', shape='constborder', types='8u 16s 32s', layouts='C1 C3 C4 AC4', desc='R',
          impl='pxl::move::copyConstBorder<{T}, pxl::Lay::{L}>', file='move/piborder', order='NTS',
          doc='src placed at (top, left) of a dstRoi image, the rest filled with value'),
    image('CopyReplicateBorder', shape='border', types='8u 16s 32s', layouts='C1 C3 C4 AC4', desc='R IR',
          impl='pxl::move::copyReplicateBorder<{T}, pxl::Lay::{L}>', file='move/piborder', order='NTS',
          doc='src placed at (top, left), edges repeated outwards; in place: srcDst is the '
              "source's origin inside the larger image"),
    image('CopyWrapBorder', shape='border', types='32s', layouts='C1', desc='R IR',
          impl='pxl::move::copyWrapBorder<{T}, pxl::Lay::{L}>', file='move/piborder', order='NTS',
          doc='the periodic repeat of src, src at (top, left)'),
    image('Mirror', shape='unary', types='8u 16u 32s', layouts='C1 C3 C4 AC4', desc='R IR',
          extra=[('int', 'axis')], impl='pxl::move::mirror<{T}, pxl::Lay::{L}>', file='move/pimirror',
          order='NS', doc='axis 0 reverses the row order, 1 each row, 2 both'),
    image('Transpose', shape='unary', types='8u 16u 32s', layouts='C1 C3 C4', desc='R IR',
          impl='pxl::move::transpose<{T}, pxl::Lay::{L}>', file='move/pitransp', order='NS',
          doc='dst is roi.height pixels wide and roi.width rows high; in place: square only'),
]
