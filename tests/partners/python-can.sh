#!/usr/bin/env bash
# 5,000 frames a second for ten seconds from python-can to the network module and back, over IPv4
# and IPv6. Exit status 77: skipped, and the last line says why.
#
#   python-can.sh <network_end>
set -euo pipefail
network_end=$1
here=$(cd "$(dirname "$0")" && pwd)
count=50000
rate=5000

if [[ ${2:-} != inside ]]; then
    python=/usr/bin/python3
    if ! $python -c 'import can, msgpack' 2>/dev/null; then
        echo "skipped: python3-can is not installed"
        exit 77
    fi
    # A network of its own: no frame leaves this machine, and none of others comes in.
    if unshare --user --map-root-user --net true 2>/dev/null; then
        exec unshare --user --map-root-user --net bash "$0" "$network_end" inside
    fi
    echo "skipped: no network of its own can be made here"
    exit 77
fi

python=/usr/bin/python3
groups=(239.74.163.2 ff15:7079:7468:6f6e:6465:6d6f:6d63:6173)
if command -v ip >/dev/null && [[ $(ip -brief link show | wc -l) == 1 ]]; then
    ip link set lo up
    ip link set lo multicast on
    ip route add 224.0.0.0/4 dev lo
    # The loopback interface brings no IPv6 group back; a cable from the machine to itself does.
    if ip link add cable0 type veth peer name cable1 2>/dev/null; then
        ip link set cable0 up
        ip link set cable1 up
        for ((i = 0; i < 1000; ++i)); do
            if [[ -z $(ip -6 addr show tentative) && -n $(ip -6 addr show dev cable1) ]]; then
                break
            fi
            read -rt 0.01 <> <(:) || true
        done
    else
        echo "no IPv6 group here: only IPv4 is tried"
        groups=(239.74.163.2)
    fi
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# wait_for <file>: until the receiver is ready
wait_for() {
    for ((i = 0; i < 2000; ++i)); do
        if grep -qs ready "$1"; then
            return
        fi
        read -rt 0.01 <> <(:) || true
    done
    echo "the receiver does not start"
    exit 1
}

for group in "${groups[@]}"; do
    echo "python-can to module, $group"
    rm -f "$work/received"
    "$network_end" receive "$group" 43113 $count >"$work/received" &
    receiver=$!
    wait_for "$work/received"
    $python "$here/python_can_partner.py" send "$group" 43113 $count $rate
    wait $receiver || {
        cat "$work/received"
        exit 1
    }

    echo "module to python-can, $group"
    rm "$work/received"
    $python -u "$here/python_can_partner.py" receive "$group" 43113 $count >"$work/received" &
    receiver=$!
    wait_for "$work/received"
    "$network_end" send "$group" 43113 $count $rate
    wait $receiver || {
        cat "$work/received"
        exit 1
    }
done
echo "no frame lost"
