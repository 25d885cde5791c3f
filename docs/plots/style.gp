# What all pictures have in common: sizes and letters as a page 800 pixels wide shows them, and lines that are told apart
# by their colour (Okabe and Ito's, for every kind of colour vision), by their dashes and by their points.
# `height` before this is loaded is another height than 360.
if (!exists("height")) height = 360
set terminal svg size 800,height font 'DejaVu Sans, Verdana, Arial, sans-serif,14' background '#ffffff'
set encoding utf8

set linetype 1 linecolor rgb '#0072b2' linewidth 2 dashtype solid      pointtype 7  pointsize 0.5   # blue, discs
set linetype 2 linecolor rgb '#d55e00' linewidth 2 dashtype (10,3)     pointtype 9  pointsize 0.6   # vermilion, triangles
set linetype 3 linecolor rgb '#009e73' linewidth 2 dashtype (3,3)      pointtype 5  pointsize 0.5   # green, squares
set linetype 4 linecolor rgb '#cc79a7' linewidth 2 dashtype (10,3,2,3) pointtype 11 pointsize 0.6   # purple, triangles downwards
set linetype 5 linecolor rgb '#e69f00' linewidth 2 dashtype solid      pointtype 6  pointsize 0.6   # orange, rings
set linetype 6 linecolor rgb '#56b4e9' linewidth 2 dashtype (10,3)     pointtype 4  pointsize 0.6   # light blue, frames
set linetype 7 linecolor rgb '#f0e442' linewidth 2 dashtype (3,3)      pointtype 13 pointsize 0.7   # yellow, diamonds
set linetype 8 linecolor rgb '#000000' linewidth 2 dashtype (2,2)      pointtype 2  pointsize 0.6   # black, crosses: bounds

set border 3 linecolor rgb '#555555'
set grid linetype 1 linecolor rgb '#dddddd' linewidth 1 dashtype solid
set tics nomirror scale 0.6 textcolor rgb '#222222'
# Beside the data, never on them.
set key outside below center horizontal samplen 3 spacing 1.1
