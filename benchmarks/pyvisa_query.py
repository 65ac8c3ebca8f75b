"""Asks an echo at the device DEVICE COUNT times, and prints the median time of a query in microseconds.

Exit status 3 when PyVISA, its Python back end or pySerial is not installed.
"""

import statistics
import sys
import time

try:
    import pyvisa
    import pyvisa_py  # noqa: F401, the back end "@py"
    import serial  # noqa: F401, its serial ports
except ImportError as missing:
    print(missing)
    sys.exit(3)

device, count = sys.argv[1], int(sys.argv[2])
port = pyvisa.ResourceManager("@py").open_resource(
    f"ASRL{device}::INSTR", read_termination="\r\n", write_termination="\r\n", baud_rate=9600
)
times = []
for trip in range(count + 200):
    start = time.perf_counter()
    reply = port.query("STST,410,0")
    times.append(time.perf_counter() - start)
    if reply != "stst,410,0":
        sys.exit(f"the echo came back wrong: {reply!r}")
print(statistics.median(times[200:]) * 1e6)
