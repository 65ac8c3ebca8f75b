410 = 1 Ohm
410/0 = 2 Ohm
