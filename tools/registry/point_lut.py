"""Lookup tables: LUT, LUT_Linear, LUT_Cubic and LUTPalette."""
from pxlreg import CTYPE, image

FILE = 'point/pilut'

# The level description of one channel (C1) or one per channel (C3, C4, AC4:
# arrays of pointers and an array of counts). 32f describes levels and values
# in float, the integer types in 32-bit integers. The argument checks look at
# the level counts before (multi-channel) or after (C1) the size, so the
# generic argument sweep does not apply: every member has order '' and the
# tests check the order themselves.
FAMILIES = []
for qual, kind, doc in (('', 'Step', 'values[k] for a sample in [levels[k], levels[k+1]); others unchanged'),
                        ('Linear', 'Linear', 'values interpolated linearly between levels'),
                        ('Cubic', 'Cubic', 'cubics through four consecutive levels')):
    impl = 'pxl::point::lut<pxl::point::LutKind::' + kind + ', {T}, pxl::Lay::{L}>'
    for types, V in (('8u 16s 16u', 'Pxl32s'), ('32f', 'Pxl32f')):
        one = [(f'const {V}*', 'values'), (f'const {V}*', 'levels'), ('Pxl32s', 'nLevels')]
        per = [(f'const {V}* const*', 'values'), (f'const {V}* const*', 'levels'), ('const Pxl32s*', 'nLevels')]
        FAMILIES += [
            image('LUT', qual=qual, shape='unary', types=types, layouts='C1', desc='R IR', extra=one,
                  impl=impl, file=FILE, doc=doc if V == 'Pxl32s' else ''),
            image('LUT', qual=qual, shape='unary', types=types, layouts='C3 C4 AC4', desc='R IR', extra=per,
                  impl=impl, file=FILE),
        ]

# The palette's entries are whole destination pixels: 1, 3 or 4 bytes.
for code, nbytes in (('8u24u', 3), ('8u32u', 4), ('16u8u', 1), ('16u24u', 3), ('16u32u', 4)):
    D = CTYPE[code[-3:] if code.endswith(('24u', '32u')) else '8u']
    FAMILIES.append(
        image('LUTPalette', shape='unary', types=code, layouts='C1', desc='R',
              extra=[(f'const {D}*', 'table'), ('int', 'nBitSize')],
              impl='pxl::point::lutPalette<{S}, {D}, ' + str(nbytes) + '>', file=FILE,
              doc='table[src & ((1 << nBitSize) - 1)], one table entry per pixel'
              if code == '8u24u' else ''))
