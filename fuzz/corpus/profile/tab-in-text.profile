based-on = sound-class-2
type = KELD "X	", Y
serial = 0 ms
lacks = 488410, 840
