# The profile of a family's errors. The figures are gnuplot's own: $data, a set of lines for each of `count` kernels with
# their `names` and `styles`, `title_of_plot`, the marks of the x axis, `loglike`, `top`, and the bounds, 0 where there is
# none.
load data
load 'style.gp'
set output picture
# The title, then the key, both above the data.
set label title_of_plot at screen 0.5, 0.96 center noenhanced
set key at screen 0.52, screen 0.93 center top horizontal maxrows 2 width -3
set tmargin at screen 0.8
set linetype 8 linewidth 1.5 dashtype (6,4)
set ylabel 'largest error, ulp'
set xlabel label_of_x
set xrange [least:most]
if (loglike) {
    set logscale y
    set yrange [0.1:top]
    unset mytics
    set format y '10^{%T}'
    set ytics add ('< 0.1' 0.1, '1' 1, '10' 10, '100' 100, '1000' 1000)
} else {
    set yrange [0:top]
}
shown(y) = loglike && y < 0.1 ? 0.1 : y
plot for [i = 1:count] $data index i-1 using 1:(shown($2)) with linespoints linetype word(styles, i) + 0 pointinterval 6 title word(names, i), \
     (allowed > 0 ? allowed : 1/0) with lines linetype 8 title (allowed > 0 ? sprintf('OpenCL allows %g', allowed) : ''), \
     (proved > 0 ? proved : 1/0) with lines linetype 8 linewidth 1 dashtype (1,3) title (proved > 0 ? sprintf('proved at most %g', proved) : '')
