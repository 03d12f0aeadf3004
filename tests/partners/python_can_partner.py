"""The other end of the network module: python-can on the same multicast group.

python_can_partner.py receive GROUP PORT COUNT   prints "ready", takes COUNT frames and checks them
python_can_partner.py send GROUP PORT COUNT RATE sends COUNT frames, RATE of them a second

Frame number i has the identifier i and its number as the first four bytes. Even ones are classic
and have 8 bytes, odd ones CAN FD with bit-rate switch and 64 bytes.
"""

import os
import socket
import sys
import time

import can


def bus_of(group, port):
    bus = can.Bus(interface="udp_multicast", channel=group, port=int(port), fd=True)
    # As much as the system allows: the interpreter may pause for a while.
    shared = socket.socket(fileno=os.dup(bus.fileno()))
    shared.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, 4 * 1024 * 1024)
    shared.close()
    return bus


def message_of(number):
    is_fd = number % 2 == 1
    data = number.to_bytes(4, "big") + bytes(60 if is_fd else 4)
    return can.Message(arbitration_id=number, is_extended_id=True, data=data, is_fd=is_fd,
                       bitrate_switch=is_fd)


def is_same(message, other):
    names = ("arbitration_id", "is_extended_id", "is_remote_frame", "is_error_frame", "is_fd",
             "bitrate_switch", "dlc", "data")
    return all(getattr(message, name) == getattr(other, name) for name in names)


def receive(bus, count):
    print("ready", flush=True)
    for number in range(count):
        message = bus.recv(timeout=20)
        if message is None:
            sys.exit(f"only {number} of {count} frames came")
        if not is_same(message, message_of(number)):
            sys.exit(f"frame {number} came as {message}")
    print(f"received {count}")


def send(bus, count, rate):
    begin = time.monotonic()
    for number in range(count):
        bus.send(message_of(number))
        ahead = begin + (number + 1) / rate - time.monotonic()
        if ahead > 0.001:
            time.sleep(ahead)
    print(f"sent {count} in {time.monotonic() - begin:.1f} s")


def main():
    what, group, port, count = sys.argv[1:5]
    with bus_of(group, port) as bus:
        if what == "receive":
            receive(bus, int(count))
        else:
            send(bus, int(count), float(sys.argv[5]))


main()
