based-on = sound-class-1
type = KELD "X", Y
serial = 1
firmware =
time = 700 ms
lacks = 410, 420
