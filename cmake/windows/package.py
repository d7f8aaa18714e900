#!/usr/bin/env python3
"""package.py FOLDER BITS VERSION TARGET: packs what was built for Windows of one bitness into TARGET/plexel-VERSION-BITS.zip
and into a set-up program of the same name."""

import pathlib
import subprocess
import sys
import tempfile
import zipfile

HERE = pathlib.Path(__file__).resolve().parent
NAMES = {"64": "x64", "32": "x86"}
OLDEST = (1980, 1, 1, 0, 0, 0)  # that an archive can tell: the same files make the same archive


def windows(path):
    return str(path).replace("/", "\\")


def lists(folder, files):
    """What puts the files into the folder of the installation, and what takes those away and nothing else."""
    folders = sorted({file.parent for file in files}, key=lambda one: (len(one.parts), one))
    put = "".join(f'SetOutPath "{windows(pathlib.PurePath("$INSTDIR") / one)}"\n'
                  + "".join(f'File "{folder / file}"\n' for file in files if file.parent == one) for one in folders)
    inner = {one for file in files for one in file.parents if one.parts}
    take = ("".join(f'Delete "$INSTDIR\\{windows(file)}"\n' for file in files)
            + "".join(f'RMDir "$INSTDIR\\{windows(one)}"\n' for one in sorted(inner, reverse=True)))
    return put, take


def main(folder, bits, version, target):
    folder, target = pathlib.Path(folder).resolve(), pathlib.Path(target).resolve()
    target.mkdir(parents=True, exist_ok=True)
    files = sorted(file.relative_to(folder) for file in folder.rglob("*") if file.is_file())
    name = f"plexel-{version}-{NAMES[bits]}"
    with zipfile.ZipFile(target / f"{name}.zip", "w", zipfile.ZIP_DEFLATED) as archive:
        for file in files:
            entry = zipfile.ZipInfo(f"{name}/{file.as_posix()}", OLDEST)
            entry.compress_type, entry.external_attr = zipfile.ZIP_DEFLATED, 0o644 << 16
            archive.writestr(entry, (folder / file).read_bytes())
    with tempfile.TemporaryDirectory() as made:
        for kind, text in zip(("put", "take"), lists(folder, files)):
            (pathlib.Path(made) / f"{kind}.nsh").write_text(text, encoding="utf-8-sig")
        run = subprocess.run(["makensis", "-V2", "-WX", f"-DVERSION={version}", f"-DBITS={bits}", f"-DLISTS={made}",
                              f"-DTARGET={target / name}.exe", str(HERE / "setup.nsi")], capture_output=True, text=True)
    if run.returncode != 0:
        sys.exit(f"{name}.exe cannot be made:\n{run.stdout}{run.stderr}")


if __name__ == "__main__":
    main(*sys.argv[1:])
