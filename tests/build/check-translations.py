#!/usr/bin/env python3
"""Checks that every text the module marks for translation is translated in each of its own
catalogues: lupdate, with the arguments of the build's ExtCommandsUpdateTranslations target,
merges the sources' texts into copies of the catalogues, and any text that then stands
unfinished is named with its catalogue, as missing (the catalogue lacked it) or unfinished
(it holds it without a finished translation). The catalogues themselves are left as they are.

    check-translations.py LUPDATE CATALOGUE.ts... -- LUPDATE_ARGUMENTS...

Quiet when every text is translated; otherwise exits 1.
"""
import os
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

SKIPPED_TYPES = {"obsolete", "vanished"}


def messages(catalogue):
    """(context, source) -> whether the translation is finished, for every live message."""
    result = {}
    for context in ElementTree.parse(catalogue).getroot().iter("context"):
        context_name = context.findtext("name", default="")
        for message in context.iter("message"):
            translation = message.find("translation")
            kind = translation.get("type") if translation is not None else "unfinished"
            if kind in SKIPPED_TYPES:
                continue
            texts = [translation.text or ""] if translation is not None else [""]
            if translation is not None and translation.find("numerusform") is not None:
                texts = [form.text or "" for form in translation.iter("numerusform")]
            finished = kind != "unfinished" and all(text.strip() for text in texts)
            result[(context_name, message.findtext("source", default=""))] = finished
    return result


def main(argv):
    if "--" not in argv or argv.index("--") < 3:
        print("usage: check-translations.py LUPDATE CATALOGUE.ts... -- LUPDATE_ARGUMENTS...",
              file=sys.stderr)
        return 2
    separator = argv.index("--")
    lupdate, catalogues, arguments = argv[1], argv[2:separator], argv[separator + 1:]
    missing_files = [catalogue for catalogue in catalogues if not os.path.isfile(catalogue)]
    if missing_files:
        print("no such catalogue: " + ", ".join(missing_files), file=sys.stderr)
        return 2
    status = 0
    with tempfile.TemporaryDirectory() as folder:
        copies = [os.path.join(folder, os.path.basename(catalogue)) for catalogue in catalogues]
        for catalogue, copy in zip(catalogues, copies):
            shutil.copyfile(catalogue, copy)
        run = subprocess.run([lupdate, "-silent", *arguments, "-ts", *copies],
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if run.returncode != 0:
            print(f"lupdate failed ({run.returncode}):\n{run.stdout}", file=sys.stderr)
            return 1
        for catalogue, copy in zip(catalogues, copies):
            before = messages(catalogue)
            for (context, source), finished in sorted(messages(copy).items()):
                if finished:
                    continue
                status = 1
                state = "unfinished in" if (context, source) in before else "missing from"
                print(f'"{source}" (context {context}) is {state} {os.path.basename(catalogue)}',
                      file=sys.stderr)
    if status:
        print("run the ExtCommandsUpdateTranslations target and translate the texts above",
              file=sys.stderr)
    return status


if __name__ == "__main__":
    sys.exit(main(sys.argv))
