# All families under their groups, single and double precision beside each other, each a row in both. Loaded before `rows` of
# data are drawn; `head` and `foot` have room for the legend and the axis.
set datafile separator tab
set datafile missing '-'
stats data using 1 nooutput
rows = STATS_max + 1
head = 66.0; foot = 58.0; row = 15.0; names = 138.0; half = (800 - names - 24) / 2
height = head + rows * row + foot
load 'style.gp'
set output picture
set yrange [rows - 0.4 : -0.6]
set border 1
unset ytics
set grid xtics
set tmargin at screen 1 - head / height
set bmargin at screen foot / height
legend = 'set key default; set key at screen 0.985, screen (1 - 4.0 / height) right top vertical maxrows 1 samplen 1.5'
# Where a precision's half lies, and what stands over it.
left(p) = (names + p * (half + 14)) / 800
right(p) = left(p) + half / 800
precision(p) = p ? 'double precision' : 'single precision'
