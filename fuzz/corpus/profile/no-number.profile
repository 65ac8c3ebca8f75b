410 = inf Ohm
