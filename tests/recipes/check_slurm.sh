#!/usr/bin/env bash
# Runs the array job on a cluster of one node that lives in a temporary folder, and interrupts a task as Slurm does before
# its time is over.
# Usage: check_slurm.sh ZERIMO-BATCH SAMPLES RECIPES
. "$(dirname "$0")/support.sh"
recipes=$3
export PATH=$PATH:/usr/sbin:/sbin
export SLURM_CONF=$work/slurm.conf

free_port() { python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])'; }

start_cluster() {
  local node
  node=$(hostname -s)
  mkdir state spool
  head -c 1024 /dev/urandom >key
  chmod 400 key
  cat >slurm.conf <<END
ClusterName=school
SlurmctldHost=$node(127.0.0.1)
SlurmUser=$(id -un)
SlurmdUser=$(id -un)
AuthType=auth/munge
CryptoType=crypto/munge
AuthInfo=socket=$work/munge.socket
SlurmctldPort=$(free_port)
SlurmdPort=$(free_port)
StateSaveLocation=$work/state
SlurmdSpoolDir=$work/spool
SlurmctldPidFile=$work/slurmctld.pid
SlurmdPidFile=$work/slurmd.pid
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
JobAcctGatherType=jobacct_gather/none
MpiDefault=none
SelectType=select/cons_tres
SelectTypeParameters=CR_Core
ReturnToService=2
NodeName=$node NodeAddr=127.0.0.1 CPUs=2 RealMemory=2048
PartitionName=all Nodes=$node Default=YES MaxTime=INFINITE State=UP
END
  munged --foreground --force --key-file="$work/key" --socket="$work/munge.socket" --pid-file="$work/munged.pid" \
    --log-file="$work/munged.log" --seed-file="$work/seed" 2>/dev/null &
  started+=($!)
  within 10 test -S munge.socket || fail "munge does not start"
  slurmctld -D -c >slurmctld.log 2>&1 &
  started+=($!)
  slurmd -D >slurmd.log 2>&1 &
  started+=($!)
  within 30 node_is_idle || fail "the cluster does not start: $(tail -5 slurmctld.log slurmd.log)"
}

node_is_idle() { [ "$(sinfo --noheader --format %t 2>/dev/null)" = idle ]; }
task_state() { squeue --noheader --job "${job}_$1" --format %T; }
runs_the_endless_one() { [ "$(task_state 1)" = RUNNING ] && [ "$(grep -c . part-1.jsonl 2>/dev/null)" = 2 ]; }
waits_again() { [ "$(task_state 1)" = PENDING ]; }
# A controller that is too busy to answer has not said that nothing is left.
nothing_is_left() {
  local left
  left=$(squeue --noheader 2>/dev/null) && [ -z "$left" ]
}

start_cluster
# The first task has the first, the third and the fifth program, which takes twenty seconds unless it is interrupted.
mv 'ben cole/ENDLESS.ZRM' 'ben cole/ZENDLESS.ZRM'
sed -i 's/ENDLESS/ZENDLESS/' 'ben cole/ZENDLESS.ZRM'
printf '%s\n' anna/*.ZRM 'ben cole'/*.ZRM >list.txt
job=$(sbatch --parsable --array=1-2 --mem=100M "$recipes/class.sbatch" list.txt --seconds 5)
within 30 runs_the_endless_one || fail "the first task does not run: $(cat slurm-*.out slurmctld.log)"
scancel --batch --signal=TERM "${job}_1"
within 30 waits_again || fail "an interrupted task does not go back to the queue: $(cat slurm-*.out)"
[ "$(grep -c . part-1.jsonl)" -eq 2 ] || fail "an interrupted task has not kept what it had"
# A cluster lets it wait two minutes. In the second of its end it may not start again: its rights are withdrawn then.
scontrol update JobId="${job}_1" StartTime=now+3
within 60 nothing_is_left || fail "the tasks do not end: $(squeue; cat slurm-*.out)"
[ "$(grep -c . part-1.jsonl)" -eq 3 ] || fail "the first task has not gone on: $(cat slurm-*.out slurmctld.log)"

zerimo-batch --merge part-1.jsonl part-2.jsonl --out report.html --csv report.csv 2>messages || fail "$(cat messages)"
sed -i 's/ZENDLESS/ENDLESS/g' report.csv list.txt
marks_are report.csv
