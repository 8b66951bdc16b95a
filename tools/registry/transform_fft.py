"""One-dimensional FFT and DFT plans and transforms: argument lists written
out, since plans and their queries are outside the naming grammar."""
from pxlreg import Custom

NS = 'pxl::transform::'


def _fft(kind, real):
    t = '32f' if real else '32fc'
    r = 'R' if real else 'C'
    tag = 'kTagFftR' if real else 'kTagFftC'
    return [
        (f'pxlsFFTGetSize_{kind}_{t}', 'PxlStatus',
         [('int', 'order'), ('int', 'flag'), ('int', 'hint'), ('int*', 'specSize'),
          ('int*', 'initSize'), ('int*', 'bufSize')],
         f'{NS}fftGetSize{r}(order, flag, hint, specSize, initSize, bufSize)'),
        (f'pxlsFFTInit_{kind}_{t}', 'PxlStatus',
         [('PxlFftCtx**', 'spec'), ('int', 'order'), ('int', 'flag'), ('int', 'hint'),
          ('Pxl8u*', 'specMem'), ('Pxl8u*', 'initBuf')],
         f'{NS}fftInit{r}(spec, order, flag, hint, specMem, initBuf)'),
        (f'pxlsFFTInitAlloc_{kind}_{t}', 'PxlStatus',
         [('PxlFftCtx**', 'spec'), ('int', 'order'), ('int', 'flag'), ('int', 'hint')],
         f'{NS}fftInitAlloc(spec, order, flag, hint, {str(real).lower()})'),
        (f'pxlsFFTFree_{kind}_{t}', 'PxlStatus', [('PxlFftCtx*', 'spec')],
         f'{NS}fftFree(spec, {NS}{tag})'),
        (f'pxlsFFTGetBufSize_{kind}_{t}', 'PxlStatus',
         [('const PxlFftCtx*', 'spec'), ('int*', 'size')], f'{NS}fftBufSize{r}(spec, size)'),
    ]


def _dft(kind, real):
    t = '32f' if real else '32fc'
    tag = 'kTagDftR' if real else 'kTagDftC'
    return [
        (f'pxlsDFTInitAlloc_{kind}_{t}', 'PxlStatus',
         [('PxlDftCtx**', 'spec'), ('int', 'length'), ('int', 'flag'), ('int', 'hint')],
         f'{NS}dftInitAlloc(spec, length, flag, hint, {str(real).lower()})'),
        (f'pxlsDFTFree_{kind}_{t}', 'PxlStatus', [('PxlDftCtx*', 'spec')],
         f'{NS}dftFree(spec, {NS}{tag})'),
        (f'pxlsDFTGetBufSize_{kind}_{t}', 'PxlStatus',
         [('const PxlDftCtx*', 'spec'), ('int*', 'size')], f'{NS}dftBufSize(spec, size, {NS}{tag})'),
    ]


def _run(stem, S, D, ctx, call):
    return (stem, 'PxlStatus',
            [(f'const {S}*', 'src'), (f'{D}*', 'dst'), (f'const {ctx}*', 'spec'), ('Pxl8u*', 'buffer')],
            f'{NS}{call}')


FAMILIES = [
    Custom('pxlsFFT', 'transform/psffts',
           _fft('C', False) + _fft('R', True) + [
               _run('pxlsFFTFwd_CToC_32fc', 'Pxl32fc', 'Pxl32fc', 'PxlFftCtx', 'fftCToC(src, dst, spec, buffer, false)'),
               _run('pxlsFFTInv_CToC_32fc', 'Pxl32fc', 'Pxl32fc', 'PxlFftCtx', 'fftCToC(src, dst, spec, buffer, true)'),
               _run('pxlsFFTFwd_RToPack_32f', 'Pxl32f', 'Pxl32f', 'PxlFftCtx', 'fftRFwd(src, dst, spec, buffer, true)'),
               _run('pxlsFFTFwd_RToPerm_32f', 'Pxl32f', 'Pxl32f', 'PxlFftCtx', 'fftRFwd(src, dst, spec, buffer, false)'),
               _run('pxlsFFTInv_PackToR_32f', 'Pxl32f', 'Pxl32f', 'PxlFftCtx', 'fftRInv(src, dst, spec, buffer, true)'),
               _run('pxlsFFTInv_PermToR_32f', 'Pxl32f', 'Pxl32f', 'PxlFftCtx', 'fftRInv(src, dst, spec, buffer, false)'),
           ],
           doc='one-dimensional FFT of length 2^order: plans and transforms'),
    Custom('pxlsDFT', 'transform/psdft',
           _dft('C', False) + _dft('R', True) + [
               _run('pxlsDFTFwd_CToC_32fc', 'Pxl32fc', 'Pxl32fc', 'PxlDftCtx', 'dftCToC(src, dst, spec, buffer, false)'),
               _run('pxlsDFTInv_CToC_32fc', 'Pxl32fc', 'Pxl32fc', 'PxlDftCtx', 'dftCToC(src, dst, spec, buffer, true)'),
               _run('pxlsDFTFwd_RToPack_32f', 'Pxl32f', 'Pxl32f', 'PxlDftCtx', 'dftRFwd(src, dst, spec, buffer)'),
               _run('pxlsDFTInv_PackToR_32f', 'Pxl32f', 'Pxl32f', 'PxlDftCtx', 'dftRInv(src, dst, spec, buffer)'),
           ],
           doc='one-dimensional DFT of any length: plans and transforms'),
]
