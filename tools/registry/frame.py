"""Allocators and the version query: argument lists written out by hand."""
from pxlreg import CTYPE, Custom

VECTOR_ALLOC_TYPES = '8u 8s 16u 16s 32u 32s 32f 64s 16sc 32sc 32fc 64fc'.split()
IMAGE_ALLOC_TYPES = '8u 16u 16s 32s 32f 32sc 32fc'.split()
IMAGE_ALLOC_LAYOUTS = {'C1': 1, 'C2': 2, 'C3': 3, 'C4': 4, 'AC4': 4}

FAMILIES = [
    Custom('pxlsMalloc', 'frame/pimalloc', [
        (f'pxlsMalloc_{t}', f'{CTYPE[t]}*', [('int', 'length')],
         f'pxl::frame::mallocVector<{CTYPE[t]}>(length)')
        for t in VECTOR_ALLOC_TYPES],
        doc='32-byte aligned vector of length elements, or NULL'),
    Custom('pxlsFree', 'frame/pimalloc', [
        ('pxlsFree', 'void', [('void*', 'ptr')], 'pxl::frame::freeBlock(ptr)')],
        doc='free a block of the allocators; NULL is ignored'),
    Custom('pxliMalloc', 'frame/pimalloc', [
        (f'pxliMalloc_{t}_{l}', f'{CTYPE[t]}*',
         [('int', 'widthPixels'), ('int', 'heightPixels'), ('int*', 'stepBytes')],
         f'pxl::frame::mallocImage<{CTYPE[t]}, {ch}>(widthPixels, heightPixels, stepBytes)')
        for t in IMAGE_ALLOC_TYPES for l, ch in IMAGE_ALLOC_LAYOUTS.items()],
        doc='image with rows on 32-byte boundaries; the step goes to *stepBytes'),
    Custom('pxliFree', 'frame/pimalloc', [
        ('pxliFree', 'void', [('void*', 'ptr')], 'pxl::frame::freeBlock(ptr)')],
        doc='free an image of pxliMalloc; NULL is ignored'),
    Custom('pxliGetLibVersion', 'frame/piversion', [
        ('pxliGetLibVersion', 'const PxlLibVersion*', [], 'pxl::frame::libVersion()')],
        doc='the static version record of this build'),
]
