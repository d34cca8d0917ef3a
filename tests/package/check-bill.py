#!/usr/bin/env python3
"""That the bill of materials in dist/ is of the packages beside it, and names what was really linked:
    tests/package/check-bill.py"""

import hashlib
import json
import pathlib
import subprocess
import sys

DIST = pathlib.Path(__file__).resolve().parents[2] / "dist"
LINKED = {"libstdc++.a", "libgcc.a", "libgcc_eh.a", "libmingw32.a", "libmingwex.a", "libwinpthread.a"}
complaints = []


def expect(found, expected, what):
    if found != expected:
        complaints.append(f"{what}: {found} instead of {expected}")


def installed_version(place):
    """Of pkg:deb/debian/<name>@<version>?arch=..."""
    name = place.removeprefix("pkg:deb/debian/").split("@")[0].replace("%2B", "+")
    return subprocess.run(["dpkg-query", "-W", "-f=${Version}", name], check=True, capture_output=True, text=True).stdout


[path] = DIST.glob("*.spdx.json")
bill = json.loads(path.read_text(encoding="utf-8"))
packages = {package["SPDXID"]: package for package in bill["packages"]}
own = {id: package for id, package in packages.items() if "packageFileName" in package}

expect(len(packages), len(bill["packages"]), "different ids")
expect({package["packageFileName"] for package in own.values()},
       {file.name for file in DIST.iterdir() if file.suffix in (".zip", ".exe")}, "packages")
for package in own.values():
    data = (DIST / package["packageFileName"]).read_bytes()
    expect(package["checksums"][0]["checksumValue"], hashlib.sha256(data).hexdigest(), package["packageFileName"])
for id, package in packages.items():
    if id not in own:
        expect(package["versionInfo"], installed_version(package["externalRefs"][0]["referenceLocator"]), id)

for relation in bill["relationships"]:
    for end in (relation["spdxElementId"], relation["relatedSpdxElement"]):
        expect(end in packages or end == "SPDXRef-DOCUMENT", True, f"{end} is in the bill")
for id, package in own.items():
    linked = [relation["relatedSpdxElement"] for relation in bill["relationships"]
              if relation["spdxElementId"] == id and relation["relationshipType"] == "STATIC_LINK"]
    expect({packages[other]["name"] for other in linked}, LINKED, f"what is linked into {package['packageFileName']}")
    expect(len(linked), len(LINKED) * (2 if package["packageFileName"].endswith(".exe") else 1), "its libraries")

print("\n".join(complaints) or "the bill is right")
sys.exit(1 if complaints else 0)
