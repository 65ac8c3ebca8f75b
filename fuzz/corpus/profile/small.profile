name = Small
410 = 0.123 Ohm
910/0 = 3.4 µA
910/3 = 1 µA overload 900 ms
