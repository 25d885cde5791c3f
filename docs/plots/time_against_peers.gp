# How far every family is ahead of the best peer with vectors of the same size.
load 'overview.gp'
least = 0.42; most = 18
set xrange [least : most]
set logscale x
set xtics ('½' 0.5, "1\nas fast as the best peer" 1, '2' 2, '4' 4, '8' 8, '16 ×' 16)
set multiplot
do for [p = 0:1] {
    c = 3 + 3 * p
    if (!p) { unset key } else { @legend }
    set lmargin at screen left(p)
    set rmargin at screen right(p)
    set label 1 precision(p) at graph 0, screen 1 - 52 / height font ',15'
    set object 1 rectangle from graph 0, graph 0 to first 1, graph 1 behind fillcolor rgb '#f4f4f4' fillstyle solid noborder
    set arrow 1 from first 1, graph 0 to first 1, graph 1 nohead lt 8 dt solid lw 1.5 back
    plot data index 1 using (least):1:(most - least):(0) with vectors nohead lc rgb '#dddddd' lw 1 notitle, \
         '' index 1 using c:1 with points lt 1 pt 7 ps 0.7 title 'plain, best 128-bit peer', \
         '' index 1 using c + 1:1 with points lt 2 pt 9 ps 0.9 title 'v3, best 256-bit peer', \
         '' index 1 using c + 2:1 with points lt 8 pt 12 ps 1.0 lw 1.5 title 'v3 on arrays, the same', \
         for [i = p:0] '' index 0 using (least):1:(sprintf('{/:Bold %s}', strcol(2))) with labels left offset screen -left(0) + 0.005, 0 notitle, \
         for [i = p:0] '' index 1 using (least):1:2 with labels right offset -0.6, 0 notitle
}
unset multiplot
