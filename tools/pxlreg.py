"""The family registry's vocabulary.

A family is a stem with its qualifiers, the sample types, layouts and name
descriptors it comes in, and the C++ implementation its members call. The
naming grammar turns each (type, layout, descriptor) into one exported name
and derives that member's argument list from the name alone: two sources or
one, in place or not, a constant, a mask, a scale. Families that do not fit
the grammar (allocators, the version query) are written out as custom entries.
"""

# Sample code -> C type of one sample. '1u' and '24u' have no C type: their
# members pass bytes.
CTYPE = {
    '1u': 'Pxl8u', '8u': 'Pxl8u', '8s': 'Pxl8s', '16u': 'Pxl16u', '16s': 'Pxl16s',
    '24u': 'Pxl8u', '32u': 'Pxl32u', '32s': 'Pxl32s', '32f': 'Pxl32f', '64s': 'Pxl64s',
    '64f': 'Pxl64f', '16sc': 'Pxl16sc', '32sc': 'Pxl32sc', '32fc': 'Pxl32fc',
    '64fc': 'Pxl64fc',
}

SAMPLE_CODES = sorted(CTYPE, key=len, reverse=True)

LAYOUTS = ['C1', 'C2', 'C3', 'C4', 'AC1', 'AC4', 'AP4', 'P3', 'P4', 'C3C1', 'C4C1',
           'C1C3', 'C1C4', 'C3AC4', 'AC4C3', 'C3P3', 'C4P4', 'P3C3', 'P4C4', 'P2C1']


def split_types(code):
    """'8u16s' -> ('8u', '16s'); '32f' -> ('32f', '32f')."""
    for first in SAMPLE_CODES:
        if code.startswith(first):
            rest = code[len(first):]
            if rest == '':
                return first, first
            if rest in CTYPE:
                return first, rest
    raise ValueError('unknown sample code ' + code)


class Member:
    def __init__(self, name, ret, args, call, family, file):
        self.name = name          # exported name
        self.ret = ret            # C return type
        self.args = args          # [(c type, argument name)]
        self.call = call          # C++ expression the shim returns
        self.family = family      # heading in the public header
        self.file = file          # family source file that holds the shim
        self.order = ''           # check order, where the tests may sweep it
        self.folds = False        # hands over to C1 after the width check
        self.vector = False       # pxls: a length instead of steps and roi
        self.sweep = {}           # argument name -> C++ value the member accepts


class Family:
    """An image (pxli) or vector (pxls) family expanded by the naming grammar.

    shape: 'binary' two sources; 'unary' one source; 'const' a constant
    operand (stems ending in C); 'set' a value and a destination; 'zero' a
    destination only; 'border' a source ROI inside a larger destination ROI
    (srcRoi, dstRoi, top, left); 'constborder' the same with a fill value
    last. Planar layouts (P3, C3P3, P3C3, ...) pass an array of plane
    pointers for their planar side.
    desc: descriptors after the layout, e.g. 'RSfs IRSfs' or 'R IR'; for
    vector families the suffix after the type, '' for none ('Sfs ISfs', ' I').
    extra: [(c type, name)] behind roi (and mask), before scale.
    sweep: {argument name: C++ expression} giving the bad-argument sweep a
    value of an extra argument that the member accepts (see SWEEP_GOOD in
    pxlgen.py for the names every family shares).
    impl: C++ callee with {T} (or {S}, {D}) and {L} placeholders.
    """

    def __init__(self, prefix, stem, types, desc, impl, file, shape, layouts='',
                 qual='', extra=(), doc='', order='', folds='', value='value', scalar_value=False,
                 sweep=None):
        self.prefix, self.stem, self.qual = prefix, stem, qual
        # The constant's name, and whether it is one sample in every layout
        # (an opacity) rather than one per channel.
        self.value, self.scalar_value = value, scalar_value
        self.types = types.split()
        self.layouts = layouts.split()
        self.desc = desc.split() if prefix == 'pxli' else [d.strip() for d in desc.split(',')]
        self.impl, self.file, self.shape = impl, file, shape
        self.extra = list(extra)
        self.doc = doc
        # Check order of the frame ('NS', 'NST', 'NTS') and the layouts whose
        # members look at the width only and hand over to C1: the argument
        # sweep of the tests derives every expected status from these two.
        self.order = order
        self.folds = folds.split()
        self.sweep = dict(sweep or {})

    def heading(self):
        q = '_' + self.qual if self.qual else ''
        return f'{self.prefix}{self.stem}{q}'

    def members(self):
        out = []
        for t in self.types:
            if self.prefix == 'pxli':
                for lay in self.layouts:
                    for d in self.desc:
                        out.append(self._member(t, lay, d))
            else:
                for d in self.desc:
                    out.append(self._member(t, None, d))
        return out

    def _member(self, tcode, lay, desc):
        q = '_' + self.qual if self.qual else ''
        if self.prefix == 'pxli':
            name = f'pxli{self.stem}{q}_{tcode}_{lay}{desc}'
        else:
            name = f'pxls{self.stem}{q}_{tcode}' + (f'_{desc}' if desc else '')
        inplace = desc.startswith('I')
        masked = 'M' in desc
        sfs = desc.endswith('Sfs')
        s, d = split_types(tcode)
        S, D = CTYPE[s], CTYPE[d]
        args = self._base_args(S, D, lay or '', inplace, 'CR' in desc)
        if masked:
            args += [('const Pxl8u*', 'mask'), ('int', 'maskStep')]
        args += self.extra
        if sfs:
            args.append(('int', 'scale'))
        impl = self.impl.format(T=D, S=S, D=D, L=lay or 'C1')
        call = f'{impl}({", ".join(a for _, a in args)})'
        m = Member(name, 'PxlStatus', args, call, self.heading(), self.file)
        m.order = self.order
        m.folds = lay in self.folds
        m.vector = self.prefix == 'pxls'
        m.sweep = self.sweep
        return m

    def _base_args(self, S, D, lay, inplace, channel_of_interest):
        img = self.prefix == 'pxli'
        if img:
            by_value = lay == 'C1' or channel_of_interest or self.scalar_value
            V = S if by_value else f'const {S}*'
        else:
            V = S
        roi = [('PxlSize', 'roi')] if img else [('int', 'length')]
        # A planar side is an array of plane pointers sharing one step; AP4
        # is planar on both sides.
        src_t = f'const {S}* const*' if lay.startswith('P') or lay == 'AP4' else f'const {S}*'
        dst_t = f'{D}* const*' if lay.endswith(('P3', 'P4')) else f'{D}*'
        io_t = f'{D}* const*' if lay in ('P3', 'P4', 'AP4') else f'{D}*'
        value = self.value

        def im(t, n):
            return [(t, n), ('int', n + 'Step')] if img else [(t, n)]

        sh = self.shape
        if sh == 'binary':
            if inplace:
                return im(src_t, 'src') + im(io_t, 'srcDst') + roi
            return im(src_t, 'src1') + im(src_t, 'src2') + im(dst_t, 'dst') + roi
        if sh == 'unary':
            if inplace:
                return im(io_t, 'srcDst') + roi
            return im(src_t, 'src') + im(dst_t, 'dst') + roi
        if sh == 'const':
            if inplace:
                return [(V, value)] + im(io_t, 'srcDst') + roi
            return im(src_t, 'src') + [(V, value)] + im(dst_t, 'dst') + roi
        if sh == 'set':
            return [(V, value)] + im(dst_t, 'dst') + roi
        if sh == 'zero':
            return im(dst_t, 'dst') + roi
        if sh in ('border', 'constborder'):
            where = [('int', 'top'), ('int', 'left')]
            if inplace:
                args = im(f'{D}*', 'srcDst') + [('PxlSize', 'srcRoi'), ('PxlSize', 'dstRoi')] + where
            else:
                args = im(src_t, 'src') + [('PxlSize', 'srcRoi')] + im(dst_t, 'dst') + \
                    [('PxlSize', 'dstRoi')] + where
            return args + ([(V, 'value')] if sh == 'constborder' else [])
        raise ValueError('unknown shape ' + sh)


class Custom:
    """Members whose argument lists are written out: allocators, queries."""

    def __init__(self, heading, file, entries, doc=''):
        self.file = file
        self._heading = heading
        self.entries = entries    # [(name, ret, [(ctype, name)], call[, order, sweep])]
        self.doc = doc
        self.prefix = heading[:4]

    def heading(self):
        return self._heading

    def members(self):
        out = []
        for e in self.entries:
            # An entry may add its check order and accepted extra values, so
            # that the argument sweep covers it: (..., order, sweep).
            m = Member(*e[:4], self._heading, self.file)
            if len(e) > 4:
                m.order, m.sweep = e[4], e[5]
            out.append(m)
        return out


def image(stem, **kw):
    return Family('pxli', stem, **kw)


def vector(stem, **kw):
    return Family('pxls', stem, **kw)
