# A group's times: above each name the widths of calls from left to right and arrays behind them; bars at the best peers.
set datafile separator tab
set datafile missing '-'
stats data using 1 nooutput
panels = STATS_blocks / 3
# Limits and rows of all panels, which share the axis of times; a column that was not timed has no records.
least = 1e9; most = 0; rows = 0
array rows_of[panels]
do for [p = 0:panels - 1] {
    stats data index 3 * p using 1 nooutput
    rows_of[p + 1] = STATS_records
    rows = rows + STATS_records
    do for [block = 3 * p:3 * p + 2] {
        do for [column = 2 + (block % 3 == 0):3 + (block % 3 == 0)] {
            stats data index block using column nooutput
            if (exists('STATS_records')) { least = STATS_min < least ? STATS_min : least; most = STATS_max > most ? STATS_max : most }
        }
    }
}
head = 50.0; panel = rows > 60 ? 290 : 250; names = rows > 60 ? 130 : 80
height = head + panels * panel
load 'style.gp'
set output picture
set logscale y
set yrange [0.85 * least : 1.2 * most]
set ytics (0.05, 0.1, 0.2, 0.5, 1, 2, 5, 10, 20, 50, 100, 200)
set grid ytics noxtics
set ylabel 'ns an element' offset 1.2, 0
set xtics rotate by 45 right scale 0
with_widths = rows > 40 ? 'lines' : 'linespoints'
set multiplot
set key default
set key at screen 0.97, screen (1 - 2.0 / height) right top vertical maxrows 2 samplen 3
do for [p = 0:panels - 1] {
    set xrange [-0.6 : rows_of[p + 1] - 0.4]
    set lmargin at screen 70.0 / 800
    set rmargin at screen 1 - 8.0 / 800
    set tmargin at screen 1 - (head + p * panel + 4.0) / height
    set bmargin at screen 1 - (head + (p + 1) * panel - names) / height
    plot data index 3 * p + 2 using 1:2 with lines lw 2 lc 8 dt solid title 'best 128-bit peer', \
         '' index 3 * p + 2 using 1:3 with lines lw 3 lc 3 dt (2, 2) title 'best 256-bit peer', \
         '' index 3 * p + 1 using 1:2 with @with_widths lt 1 lw 1.5 title 'plain, widths 1 to 16', \
         '' index 3 * p + 1 using 1:3 with @with_widths lt 2 lw 1.5 dt (6, 2) title 'v3, widths 1 to 16', \
         '' index 3 * p using ($1 + 0.33):3 with points lt 1 pt 6 ps 0.9 title 'plain, arrays', \
         '' index 3 * p using ($1 + 0.33):4 with points lt 2 pt 8 ps 1.0 title 'v3, arrays', \
         '' index 3 * p using 1:(1e-9):xtic(2) with points pt 0 notitle
    unset key
}
unset multiplot
