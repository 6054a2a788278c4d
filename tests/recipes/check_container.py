#!/usr/bin/env python3
"""Checks the form of the container file and of the Kubernetes job: an unprivileged user, a part for each index.

Usage: check_container.py RECIPES
"""
import pathlib
import re
import sys

import yaml

recipes = pathlib.Path(sys.argv[1])


def instructions(text):
    """The instructions of a container file as pairs of name and rest, without comments."""
    lines = [line for line in text.splitlines() if not line.startswith("#")]
    joined = "\n".join(lines).replace("\\\n", " ")
    return [tuple(line.split(None, 1)) for line in joined.splitlines() if line.strip()]


def check(condition, words):
    if not condition:
        sys.exit(words)


image = instructions((recipes / "Containerfile").read_text())
names = [name for name, _ in image]
known = {"FROM", "COPY", "RUN", "USER", "WORKDIR", "ENTRYPOINT"}
check(set(names) == known, f"instructions: {names}")
check(dict(image)["FROM"].startswith("debian:"), "the base is not Debian")
user = dict(image)["USER"].strip()
check(user.isdigit() and int(user) >= 1000, f"user {user} has rights")
check(names.index("USER") > max(i for i, name in enumerate(names) if name == "RUN"), "the user comes before a RUN")
check(f"--uid {user}" in dict(image)["RUN"], "the user is not made")

job = yaml.safe_load((recipes / "class-job.yaml").read_text())
check((job["apiVersion"], job["kind"]) == ("batch/v1", "Job"), "no job")
spec, pod = job["spec"], job["spec"]["template"]["spec"]
check(spec["completionMode"] == "Indexed", "the job is not indexed")
check(pod["restartPolicy"] == "Never", "the failure policy needs pods that are not restarted")
check(pod["securityContext"]["runAsNonRoot"] and str(pod["securityContext"]["runAsUser"]) == user, "another user")
(runner,) = pod["containers"]
check({"name": "PARTS", "value": str(spec["completions"])} in runner["env"], "the parts are not the completions")
check(runner["securityContext"]["capabilities"]["drop"] == ["ALL"], "rights are left")
check(not runner["securityContext"]["allowPrivilegeEscalation"], "rights can be gained")
mounted = {mount["name"] for mount in runner["volumeMounts"]}
check(mounted == {volume["name"] for volume in pod["volumes"]}, f"volumes: {mounted}")
(command,) = runner["args"]
check(re.search(r'--shard "\$\(\(JOB_COMPLETION_INDEX \+ 1\)\)/\$PARTS"', command), f"no part for an index: {command}")
rules = {rule["action"]: rule for rule in spec["podFailurePolicy"]["rules"]}
check(rules["FailJob"]["onExitCodes"]["values"] == [2], "bad usage is tried again")
check(rules["FailJob"]["onExitCodes"]["containerName"] == runner["name"], "the rule is for another container")
