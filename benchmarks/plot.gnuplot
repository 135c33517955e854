# SPDX-License-Identifier: GPL-3.0-or-later
# Draws the file "curves" that table.py wrote into performance.png.
set terminal png size 1000,600
set output "performance.png"
set title "Processor time against the number of entries"
set xlabel "entries"
set ylabel "milliseconds"
set logscale xy
set xrange [1000:*]
set grid
set key outside right
plot for [i = 0:*] "curves" index i with linespoints linewidth 2 title columnheader(1)
