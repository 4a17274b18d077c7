# Regenerates the reference figures recorded in the statistics tests. Run by hand
# with Debian's python3-scipy (1.10.1) and python3-numpy (1.24.2):
#   /usr/bin/python3 tools/statistics_reference_figures.py
# Not part of the build. Three kinds of figure:
#  - textbook results from scipy (F upper tail, pooled and paired t, one-way ANOVA),
#  - the 32-bit rounding order of the t-test and ANOVA restated in numpy float32,
#  - the F tail routines restated in Python's IEEE doubles, to the last bit.
import math
import numpy as np
import scipy
from scipy import stats

print("scipy", scipy.__version__, "numpy", np.__version__)
print("F upper tail at F = 0.25, 1.0, 3.5")
for dfn in (1, 2, 5, 24):
    for dfd in (1, 7, 120):
        print("{%d, %d, {%s}}," % (dfn, dfd, ", ".join(
            "%.17g" % stats.f.sf(F, dfn, dfd) for F in (0.25, 1.0, 3.5))))

f = lambda x: float(np.float32(x))
def mean(xs): return f(sum(xs) / len(xs))   # python sum is a left-to-right 64-bit sum
def between(g):
  k = len(g)
  W = []
  for xs in g:
    m = mean(xs); w = 0.0
    for x in xs: w = f(w + (x - m) * (x - m))
    W.append(w)
  G = 0.0
  for xs in g: G = f(G + mean(xs))
  G = f(G / k)
  H = 0.0
  for xs in g: H = f(H + 1.0 / len(xs))
  H = f(k / H)
  D = 0.0
  for xs in g:
    d = f(mean(xs) - G); D = f(D + f(d * d))
  D = f(H * D)
  dfa = k - 1; msa = f(D / dfa)
  S = 0.0; dfe = 0.0
  for xs, w in zip(g, W):
    S = f(S + w); dfe = f(dfe + (len(xs) - 1))
  mse = f(S / dfe)
  return dfe, f(msa / mse)
def within(g):
  k = len(g); n = len(g[0])
  T = []
  for xs in g:
    t = 0.0
    for x in xs: t = f(t + x)
    T.append(t)
  TT = [f(t * t) for t in T]
  R = [0.0] * n; RR = [0.0] * n; Q = 0.0; G = 0.0
  for j in range(n):
    for i in range(k):
      x = g[i][j]
      R[j] = f(R[j] + x); Q = f(Q + x * x); G = f(G + x)
    RR[j] = f(R[j] * R[j])
  C = f(f(G * G) / (k * n))
  A = 0.0
  for t in TT: A = f(A + t)
  A = f(A / n)
  B = 0.0
  for r in RR: B = f(B + r)
  B = f(B / k)
  E = f(A - C); S = f(f(f(Q - A) - B) + C)
  dfs = f(n - 1); dfa = k - 1; dfe = f(dfa * dfs)
  return dfe, f(f(E / dfa) / f(S / dfe))

cases = {
    "pooled_equal_sizes": ([[4.2, 5.1, 3.9, 6.0, 5.5], [6.1, 5.8, 7.2, 6.6, 5.9]], between, "ind"),
    "pooled_quarters": ([[12.5, 14.25, 11.0, 13.75, 15.5, 12.0],
                         [10.5, 9.75, 12.25, 11.0, 10.0, 9.5]], between, "ind"),
    "pooled_unequal_sizes": ([[1, 2, 3, 4], [3, 5, 7]], between, "ind"),
    "paired_seven": ([[72, 68, 75, 80, 66, 71, 77], [70, 65, 74, 76, 66, 68, 75]], within, "rel"),
    "paired_ten": ([[5.1, 4.8, 6.2, 5.9, 5.0, 6.4, 5.5, 4.9, 6.1, 5.7],
                    [5.6, 5.0, 6.0, 6.5, 5.4, 6.9, 5.8, 5.3, 6.6, 5.9]], within, "rel"),
    "three_groups": ([[4.2, 5.1, 3.9, 6.0, 5.5], [6.1, 5.8, 7.2, 6.6, 5.9],
                      [5.0, 4.4, 5.2, 6.3, 4.8]], between, "oneway"),
    "four_groups": ([[10, 12, 11, 14], [13, 15, 14, 16], [9, 11, 10, 12], [12, 12, 13, 15]],
                    between, "oneway"),
    "unequal_sizes_unweighted": ([[1, 2, 3, 4], [3, 5, 7], [6, 8]], between, "unweighted"),
    "repeated_measures": ([[7, 5, 6, 8, 4], [8, 7, 6, 9, 6], [9, 8, 9, 11, 7]], within, "rm"),
}


def textbook(groups, kind):
    if kind == "ind":
        r = stats.ttest_ind(*groups)
        return r.statistic ** 2, r.pvalue
    if kind == "rel":
        r = stats.ttest_rel(*groups)
        return r.statistic ** 2, r.pvalue
    if kind == "oneway":
        r = stats.f_oneway(*groups)
        return r.statistic, r.pvalue
    k = len(groups)
    if kind == "unweighted":
        m = [sum(g) / len(g) for g in groups]
        h = k / sum(1 / len(g) for g in groups)
        grand = sum(m) / k
        msa = h * sum((a - grand) ** 2 for a in m) / (k - 1)
        dfe = sum(len(g) - 1 for g in groups)
        mse = sum(sum((v - a) ** 2 for v in g) for g, a in zip(groups, m)) / dfe
        return msa / mse, stats.f.sf(msa / mse, k - 1, dfe)
    x = np.array(groups, dtype=float).T  # subjects by conditions
    n = x.shape[0]
    grand = x.mean()
    ssc = n * ((x.mean(0) - grand) ** 2).sum()
    sss = k * ((x.mean(1) - grand) ** 2).sum()
    sse = ((x - grand) ** 2).sum() - ssc - sss
    dfa, dfe = k - 1, (k - 1) * (n - 1)
    F = (ssc / dfa) / (sse / dfe)
    return F, stats.f.sf(F, dfa, dfe)


print("name: textbook F, p; F in 32 bits by the program's rounding order")
for name, (groups, design, kind) in cases.items():
    F, p = textbook(groups, kind)
    print("%s: %.17g, %.17g; %s" % (name, F, p, design(groups)[1].hex()))

def gammln(xx):
  x = xx - 1.0; tmp = x + 5.5; tmp = (x + 0.5) * math.log(tmp) - tmp
  ser = (1.0 + 76.18009173 / (x + 1.0) - 86.50532033 / (x + 2.0) + 24.01409822 / (x + 3.0)
         - 1.231739516 / (x + 4.0) + 0.00120858003 / (x + 5.0) - 5.36382e-06 / (x + 6.0))
  return tmp + math.log(2.50662827465 * ser)
def betacf(a, b, x):
  am = bm = az = 1.0; qab = a + b; qap = a + 1.0; qam = a - 1.0; bz = 1.0 - qab * x / qap
  m = 1
  while True:
    if m > 100: break
    em = float(m); tem = em + em
    d = em * (b - m) * x / ((qam + tem) * (a + tem))
    ap = az + d * am; bp = bz + d * bm
    d = -(a + em) * (qab + em) * x / ((a + tem) * (qap + tem))
    app = ap + d * az; bpp = bp + d * bz
    aold = az; am = ap / bpp; bm = bp / bpp; az = app / bpp; bz = 1.0
    if abs(az - aold) < 3e-07 * abs(az): break
    m += 1
  return az
def betai(a, b, x):
  bt = 0.0 if x in (0.0, 1.0) else math.exp(
      gammln(a + b) - gammln(a) - gammln(b) + a * math.log(x) + b * math.log(1.0 - x))
  if x < (a + 1.0) / (a + b + 2.0): return bt * betacf(a, b, x) / a
  return 1.0 - bt * betacf(b, a, 1.0 - x) / b
def P(dfn, dfd, F): return betai(dfd / 2.0, dfn / 2.0, dfd / (dfd + dfn * F))

print("F tail to the last bit")
for args in [(1, 1, 1), (1, 4, 1.5), (2, 6, 3), (3.5, 17.25, 2.2), (10, 40, 0.25),
             (24, 120, 3.5), (5, 7, 1.0)]:
    print(args, P(*args).hex())


def descriptives(xs):
    """Mean, Var, Sum, SD, SEM as the sheet shows them, 32-bit stores in numpy float32."""
    n = len(xs)
    m = f(sum(xs) / n)
    acc = 0.0
    for x in xs:
        acc = f(acc + (x - m) * (x - m))
    var = f(acc / (n - 1))
    total = 0.0
    for x in xs:
        total = f(total + x)
    return [str(np.float32(v)) for v in (m, var, total)] + [
        repr(math.sqrt(var)), repr(math.sqrt(var) / math.sqrt(n))]


print("descriptives: Mean, Var, Sum, SD, SEM")
for xs in ([1, 2, 3, 4], [1e8, 1, -1e8, 0.1], [0.1, 0.2, 0.3], [2.5, -1.25, 3.75, 3.75, 0.1]):
    print(xs, descriptives(xs))
