#!/usr/bin/env python3
"""What of others is in the packages, asked of the compilers and of the system's package database:
    packaging/third_party.py licences <folder>
writes the licence texts that the statically linked libraries ask to be passed on, a file for each source package;
    packaging/third_party.py bill <version> <time> <package>... >bill.spdx.json
writes the bill of materials of the finished packages in SPDX 2.3; `time` is in seconds since 1970."""

import datetime
import hashlib
import json
import pathlib
import re
import subprocess
import sys

COMPILERS = {"x64": "x86_64-w64-mingw32-g++-posix", "x86": "i686-w64-mingw32-g++-posix"}
GCC_LICENCE = "GPL-3.0-or-later WITH GCC-exception-3.1"
LIBRARIES = {  # what the linker takes from outside the project, with its licence
    "libstdc++.a": ("C++ standard library", GCC_LICENCE),
    "libgcc.a": ("compiler support", GCC_LICENCE),
    "libgcc_eh.a": ("exceptions", GCC_LICENCE),
    "libmingw32.a": ("start-up code", "ZPL-2.1"),
    "libmingwex.a": ("C library additions", "ZPL-2.1"),
    "libwinpthread.a": ("threads", "MIT AND BSD-3-Clause"),
}
INSTALLER_LICENCE = "Zlib AND CPL-1.0"
COMMON_LICENCES = pathlib.Path("/usr/share/common-licenses")


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()


def file_of(compiler, library):
    path = pathlib.Path(output_of(compiler, f"-print-file-name={library}"))
    if not path.is_absolute():
        sys.exit(f"{compiler} has no {library}")
    return path.resolve()


def owner_of(path):
    """The installed package that a file is of."""
    return output_of("dpkg-query", "--search", str(path)).split(":")[0]


def about(package):
    form = "${source:Package}\t${Version}\t${Architecture}"
    source, version, architecture = output_of("dpkg-query", "-W", f"-f={form}", package).split("\t")
    return {"source": source, "version": version, "architecture": architecture}


def write_licences(folder):
    owners = {owner_of(file_of(compiler, library)) for compiler in COMPILERS.values() for library in LIBRARIES}
    texts = {}
    for package in sorted(owners):
        text = pathlib.Path(f"/usr/share/doc/{package}/copyright").read_text(encoding="utf-8")
        source = about(package)["source"]
        if texts.setdefault(source, text) != text:
            sys.exit(f"the packages of {source} differ in their licences")
    # The texts refer to licences that every Debian system has, and Windows has not.
    for name in sorted(set(re.findall(r"common-licenses/([A-Z][A-Za-z0-9.-]*[A-Za-z0-9])", "".join(texts.values())))):
        texts[name] = (COMMON_LICENCES / name).read_text(encoding="utf-8")
    target = pathlib.Path(folder)
    target.mkdir(parents=True)
    for name, text in texts.items():
        (target / f"{name}.txt").write_text(text, encoding="utf-8", newline="\r\n")


def spdx_id(*words):
    return "SPDXRef-" + re.sub(r"[^A-Za-z0-9.-]+", "-", "-".join(words))


def from_debian(spdx, name, licence, summary, package):
    facts = about(package)
    place = f"pkg:deb/debian/{package.replace('+', '%2B')}@{facts['version'].replace('+', '%2B')}"
    return {
        "SPDXID": spdx, "name": name, "versionInfo": facts["version"], "summary": summary,
        "supplier": "Organization: Debian", "downloadLocation": "NOASSERTION", "filesAnalyzed": False,
        "licenseConcluded": licence, "licenseDeclared": licence, "copyrightText": "NOASSERTION",
        "externalRefs": [{"referenceCategory": "PACKAGE-MANAGER", "referenceType": "purl",
                          "referenceLocator": f"{place}?arch={facts['architecture']}"}],
    }


def shipped(path, version):
    return {
        "SPDXID": spdx_id("package", path.name), "name": "Lindrel", "versionInfo": version,
        "packageFileName": path.name, "supplier": "NOASSERTION", "downloadLocation": "NOASSERTION",
        "filesAnalyzed": False, "licenseConcluded": "NOASSERTION", "licenseDeclared": "NOASSERTION",
        "copyrightText": "© 2026 Lindrel", "primaryPackagePurpose": "INSTALL" if path.suffix == ".exe" else "ARCHIVE",
        "checksums": [{"algorithm": "SHA256", "checksumValue": hashlib.sha256(path.read_bytes()).hexdigest()}],
    }


def bill(version, time, paths):
    """The document. A zip holds the program of the width in its name, the installer those of both."""
    own = {path: shipped(path, version) for path in map(pathlib.Path, paths)}
    packages, relations = list(own.values()), []

    def relate(subject, relation, target):
        relations.append({"spdxElementId": subject, "relationshipType": relation, "relatedSpdxElement": target})

    for package in own.values():
        relate("SPDXRef-DOCUMENT", "DESCRIBES", package["SPDXID"])
    for width, compiler in COMPILERS.items():
        for library, (summary, licence) in LIBRARIES.items():
            spdx = spdx_id(width, library)
            packages.append(from_debian(spdx, library, licence, summary, owner_of(file_of(compiler, library))))
            for path, package in own.items():
                if path.suffix == ".exe" or path.stem.endswith(width):
                    relate(package["SPDXID"], "STATIC_LINK", spdx)
    packages.append(from_debian(spdx_id("nsis"), "NSIS", INSTALLER_LICENCE, "code of the installer", "nsis"))
    for path, package in own.items():
        if path.suffix == ".exe":
            relate(package["SPDXID"], "CONTAINS", spdx_id("nsis"))

    contents = hashlib.sha256(json.dumps([packages, relations]).encode()).hexdigest()
    created = datetime.datetime.fromtimestamp(int(time), datetime.timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")
    return {
        "spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT", "name": f"Lindrel {version}",
        "documentNamespace": f"urn:lindrel:{version}:{contents}",
        "creationInfo": {"created": created, "creators": ["Tool: packaging/third_party.py"]},
        "packages": packages, "relationships": relations,
    }


if sys.argv[1] == "licences":
    write_licences(sys.argv[2])
else:
    json.dump(bill(sys.argv[2], sys.argv[3], sys.argv[4:]), sys.stdout, ensure_ascii=False, indent=2)
    print()
