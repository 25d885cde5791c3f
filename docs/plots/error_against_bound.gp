# The largest error found and the proved bound of every family, over what OpenCL allows.
load 'overview.gp'
most = 1.5
set xrange [0 : most]
set xtics ('0' 0, '¼' 0.25, '½' 0.5, '¾' 0.75, "1\nOpenCL's bound" 1, '1¼' 1.25)
set multiplot
do for [p = 0:1] {
    c = 3 + 3 * p
    if (!p) { unset key } else { @legend }
    set lmargin at screen left(p)
    set rmargin at screen right(p)
    set label 1 precision(p) at graph 0, screen 1 - 52 / height font ',15'
    set object 1 rectangle from first 1, graph 0 to graph 1, graph 1 behind fillcolor rgb '#f4f4f4' fillstyle solid noborder
    set arrow 1 from first 1, graph 0 to first 1, graph 1 nohead lt 8 dt solid lw 1.5 back
    plot data index 1 using (0):1:(column(c) == 1 ? NaN : column(c)):(0) with vectors nohead lc rgb '#bbbbbb' lw 1 notitle, \
         '' index 1 using (0):1:(column(c + 2)):(0) with vectors nohead lc rgb '#bbbbbb' lw 1 notitle, \
         '' index 1 using c:1 with points lt 1 pt 7 ps 0.7 title 'largest found', \
         '' index 1 using c + 2:1 with points lt 2 pt 9 ps 1.1 title 'beyond the bound', \
         '' index 1 using (column(c + 1) > most ? most - 0.02 : column(c + 1)):1 with points lt 8 pt 12 ps 1.0 lw 1.5 title 'proved at most', \
         '' index 1 using (column(c + 1) > most ? most - 0.06 : NaN):1:(sprintf('%.1f ▸', column(c + 1))) with labels right notitle, \
         '' index 1 using (column(c) == 1 ? 0.97 : NaN):1:('correctly rounded') with labels right textcolor rgb '#555555' notitle, \
         '' index 1 using (column(c + 2) + 0.05):1:(sprintf('%.3f', column(c + 2))) with labels left textcolor rgb '#b04000' notitle, \
         for [i = p:0] '' index 0 using (0):1:(sprintf('{/:Bold %s}', strcol(2))) with labels left offset screen -left(0) + 0.005, 0 notitle, \
         for [i = p:0] '' index 1 using (0):1:2 with labels right offset -0.6, 0 notitle
}
unset multiplot
