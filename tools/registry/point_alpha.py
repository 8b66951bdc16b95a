"""Alpha composition: AlphaComp, AlphaCompC, AlphaPremul, AlphaPremulC."""
from pxlreg import CTYPE, Custom, image

FILE = 'point/pialpha'
T = '8u 16u'
OP = [('int', 'alphaType')]


def lay(tmpl):
    return 'pxl::point::' + tmpl + '<{T}, pxl::point::AlphaLay::{L}>'


# AlphaCompC places each source's constant alpha right behind that source,
# which the grammar's one constant cannot say: its lists are written out.
def comp_c():
    entries = []
    for t in T.split():
        S = CTYPE[t]
        for l in ('C1', 'C3', 'C4', 'AC4', 'AP4'):
            src = f'const {S}* const*' if l == 'AP4' else f'const {S}*'
            dst = f'{S}* const*' if l == 'AP4' else f'{S}*'
            args = [(src, 'src1'), ('int', 'src1Step'), (S, 'alpha1'), (src, 'src2'), ('int', 'src2Step'),
                    (S, 'alpha2'), (dst, 'dst'), ('int', 'dstStep'), ('PxlSize', 'roi'), ('int', 'alphaType')]
            call = (f'pxl::point::alphaCompC<{S}, pxl::point::AlphaLay::{l}>('
                    + ', '.join(n for _, n in args) + ')')
            entries.append((f'pxliAlphaCompC_{t}_{l}R', 'PxlStatus', args, call))
    return entries


FAMILIES = [
    image('AlphaComp', shape='binary', types=T, layouts='AC4 AC1 AP4', desc='R', extra=OP,
          impl=lay('alphaComp'), file=FILE, order='NS',
          doc='src1 composed with src2 by the operator; AC4 and AP4 write the alpha result'),
    Custom('pxliAlphaCompC', FILE, comp_c(), doc='composition with one constant alpha per source'),
    image('AlphaPremul', shape='unary', types=T, layouts='AC4 AP4', desc='R IR', impl=lay('alphaPremul'),
          file=FILE, order='NS', doc='colour samples times the pixel\'s alpha; alpha unchanged'),
    image('AlphaPremulC', shape='const', types=T, layouts='C1 C3 C4 AC4 AP4', desc='R IR', value='alpha',
          scalar_value=True, impl=lay('alphaPremulC'), file=FILE, order='NS',
          doc='every sample times the constant alpha'),
]
