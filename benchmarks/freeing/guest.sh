#!/bin/busybox sh
# shellcheck shell=dash
# Runs as the first process of the emulated machine: one line of the table for each case.
/bin/busybox --install -s /bin
mount -t proc proc /proc
mount -t sysfs sysfs /sys
mount -t devtmpfs dev /dev
while read -r name; do
    [ -f "/modules/$name.ko" ] && insmod "/modules/$name.ko" 2>/dev/null
done </modules/order
mount -t ext4 /dev/vda /disk || poweroff -f
mount -t tmpfs tmpfs /tmp
chown -R 1000:1000 /disk/home
: "${cases:=}"
mkdir -p /sys/fs/cgroup && mount -t cgroup2 cgroup2 /sys/fs/cgroup
app=/sys/fs/cgroup/user.slice/user-1000.slice/user@1000.service/app.slice
mkdir -p "$app"
for group in /sys/fs/cgroup /sys/fs/cgroup/user.slice /sys/fs/cgroup/user.slice/user-1000.slice ${app%/*}; do
    echo +memory >"$group"/cgroup.subtree_control
done

field() { awk -v name="$2" '$1 == name { print $2 }' "$1"; }
mib() { echo $(($(field /proc/meminfo "$1:") / 1024)); }

# case NAME PREPARE COMMAND: cold cache, bystanders, the command, and what became of them.
case_() {
    # The kernel hands "cases=..." on its command line to us as a variable: a part of the names wanted.
    name=$1
    case "$name" in *$cases*) ;; *) return ;; esac
    sync
    echo 3 >/proc/sys/vm/drop_caches
    eval "$2"
    # 150 MiB of idle memory, the first to be swapped out, and a file that is read twice a second.
    (head -c 150m /dev/zero; exec sleep 1000) | tail >/dev/null &
    (while sleep 0.5; do cat /disk/hot >/dev/null; done) &
    [ -z "$hot_group" ] || echo $! >"$hot_group/cgroup.procs"
    sleep 2
    ([ -z "$reader_group" ] || echo 0 >"$reader_group/cgroup.procs"; exec cat /disk/cold/* >/dev/null)
    free0=$(mib MemFree) inactive0=$(mib 'Inactive(file)') active0=$(mib 'Active(file)')
    out0=$(field /proc/vmstat pswpout) refault0=$(field /proc/vmstat workingset_refault_file)
    full0=$(sed -n 's/^full.*total=//p' /proc/pressure/memory)
    said=$(eval "$3" 2>&1)
    status=$?
    printf '%-40s | %4d | %4d | %4d | %4d | %3d | %3d | %4d | %d | %d | %s\n' "$name" "$inactive0" \
        "$(mib 'Inactive(file)')" "$(($(mib MemFree) - free0))" "$active0" \
        "$((($(field /proc/vmstat pswpout) - out0) / 256))" \
        "$(($(field /proc/vmstat workingset_refault_file) - refault0))" \
        "$((($(sed -n 's/^full.*total=//p' /proc/pressure/memory) - full0) / 1000))" \
        "$(field /proc/vmstat oom_kill)" "$status" "$said"
    # Everything but ourselves, the first process.
    kill -9 -1
    wait
}
as_user() { su user -c "HOME=/disk/home memfree $bytes"; }
without_disk() { su user -c "HOME=/ XDG_CACHE_HOME=/tmp memfree $bytes"; }
# Every page of the swap is in use: what is there may be taken back to memory, but nothing more can go out.
fill_swap() {
    swapon /dev/vdb 2>/dev/null
    mkdir -p /sys/fs/cgroup/filler
    (echo 0 >/sys/fs/cgroup/filler/cgroup.procs; exec dd if=/dev/zero of=/tmp/fill bs=1M count=540 2>/dev/null)
    echo 540M >/sys/fs/cgroup/filler/memory.reclaim 2>/dev/null
    name="$name: $(($(field /proc/meminfo SwapFree:) / 1024)) MiB of it free"
}
in_group() { (echo 0 >"$1/cgroup.procs"; shift; "$@"); }

bytes=2200000000
reader_group=
hot_group=
echo "Linux $(uname -r), $(mib MemTotal) MiB, multi-generation LRU $(cat /sys/kernel/mm/lru_gen/enabled)"
echo "case                                     | inact| after|freed | act  | swap| refl| full |oom|rc| said"
case_ "root" : "memfree $bytes"
case_ "root, bare drop of clean cache" : "echo 1 >/proc/sys/vm/drop_caches"
case_ "user" : as_user
[ -w /sys/kernel/mm/lru_gen/enabled ] && {
    was=$(cat /sys/kernel/mm/lru_gen/enabled)
    [ "$was" = 0x0000 ] && other=y || other=n
    case_ "user, multi-generation LRU $other" "echo $other >/sys/kernel/mm/lru_gen/enabled" as_user
    case_ "user, multi-generation LRU $other, swap" "swapon /dev/vdb" as_user
    swapoff /dev/vdb 2>/dev/null
    echo "$was" >/sys/kernel/mm/lru_gen/enabled
}
case_ "user, swap" "swapon /dev/vdb" as_user
swapoff /dev/vdb 2>/dev/null
case_ "user, swap full" fill_swap as_user
case_ "user, swap full, only in memory" fill_swap without_disk
rm -f /tmp/fill
swapoff /dev/vdb 2>/dev/null
chown 1000 $app/memory.reclaim
reader_group=$app
case_ "user, delegated group" : as_user
hot_group=${app%/*}/session.slice
mkdir "$hot_group"
chown 0 $app/memory.reclaim
case_ "user, three control groups" : as_user
case_ "user, three control groups, only in memory" : without_disk
case_ "user, three control groups, swap" "swapon /dev/vdb" as_user
swapoff /dev/vdb 2>/dev/null
chown 1000 $app/memory.reclaim
case_ "user, delegated group, swap" "swapon /dev/vdb" as_user
swapoff /dev/vdb 2>/dev/null
reader_group=
hot_group=
chown 0 $app/memory.reclaim
limited=/sys/fs/cgroup/limited
mkdir $limited && echo 1G >$limited/memory.max
case_ "user, limit of 1 GiB" : "in_group $limited as_user"
echo 256M >$limited/memory.max
case_ "user, limit of 256 MiB" : "in_group $limited as_user"
case_ "user, only file systems in memory" : without_disk
case_ "user, only file systems in memory, swap" "swapon /dev/vdb" without_disk
swapoff /dev/vdb 2>/dev/null
# A file in memory, which nothing can take back, grows while memory is being freed.
case_ "user, another takes 1.2 GiB" : "dd if=/dev/zero of=/tmp/big bs=1M count=1200 2>/dev/null & as_user"
rm -f /tmp/big
case_ "user, another takes 900 MiB, in memory" : \
    "dd if=/dev/zero of=/tmp/big bs=1M count=900 2>/dev/null & without_disk"
rm -f /tmp/big
case_ "user, nothing to gain" "mkdir /disk/none && mount --bind /disk/none /disk/cold; touch /disk/cold/none" as_user
poweroff -f
