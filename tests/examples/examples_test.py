"""examples_test.py gcc|clang SOURCE BUILD WORK: builds the examples with the files that the package has for clients,
runs them, and compares what they print with docs/using_the_module.md. Checks the import library and what find_package
says, too."""
import pathlib
import re
import shutil
import struct
import subprocess
import sys

compiler, source, build, work = sys.argv[1], *(pathlib.Path(folder) for folder in sys.argv[2:])
document = (source / "docs/using_the_module.md").read_text()
package = work / "the package \u00e4"  # a folder as a user may have it
programs = work / "programs"
TOOLCHAINS = {
    "gcc": ["-DCMAKE_SYSTEM_NAME=Windows", "-DCMAKE_SYSTEM_PROCESSOR=x86_64",
            "-DCMAKE_C_COMPILER=x86_64-w64-mingw32-gcc-posix", "-DCMAKE_CXX_COMPILER=x86_64-w64-mingw32-g++-posix",
            "-DCMAKE_FIND_ROOT_PATH=/usr/x86_64-w64-mingw32", "-DCMAKE_FIND_ROOT_PATH_MODE_PACKAGE=ONLY"],
    "clang": ["--toolchain", source / "cmake/mingw-w64.cmake", "-DCMAKE_CXX_STANDARD_LIBRARIES=-lpthread -lkernel32"],
}
WARNINGS = "-Wall -Wextra -pedantic -Werror"
MATCHING, POSITION, OK, CANCEL = "1354", "2", "1", "2"  # the list of matching for images, its third entry, the buttons
failures = []


def expect(condition, text):
    if not condition:
        failures.append(text)


def run(command, folder=work, code=0):
    """The output of a command. What it starts keeps no pipe of this process open."""
    with open(work / "output", "w+") as output:
        result = subprocess.run([str(part) for part in command], cwd=folder, stdin=subprocess.DEVNULL, stdout=output,
                                stderr=subprocess.STDOUT, timeout=150, check=False).returncode
        output.seek(0)
        text = output.read()
    if result != code:
        sys.exit(f"{' '.join(str(part) for part in command)} ended with {result}:\n{text}")
    return text


def configure(folder, *options, code=0):
    return run(["cmake", "-G", "Ninja", "-S", package / "examples", "-B", folder, *options], code=code)


def check_import_library():
    """Each export of the module definition file has a short import by its name, for x86-64, and there is no other."""
    data = (package / "lib/TELMAR_D.lib").read_bytes()
    expect(data.startswith(b"!<arch>\n"), "the import library is no archive")
    imports, at = {}, 8
    while at < len(data):
        size = int(data[at + 48:at + 58])
        member = data[at + 60:at + 60 + size]
        at += 60 + size + size % 2
        if member[:4] == b"\0\0\xff\xff":
            machine, kind = struct.unpack_from("<H", member, 6)[0], struct.unpack_from("<H", member, 18)[0]
            name, library = member[20:].split(b"\0")[:2]
            imports[name.decode()] = (machine, kind & 3, kind >> 2 & 7, library.decode().upper())
    names = re.findall(r"^ +(\w+).*@\d+$", (package / "lib/TELMAR_D.def").read_text(), re.M)
    expect(len(names) == 26 and sorted(imports) == sorted(names), f"the import library has {sorted(imports)}")
    for name, entry in imports.items():
        expect(entry == (0x8664, 0, 1, "TELMAR_D.DLL"), f"{name} is imported as {entry}")  # code, by name


def check_messages():
    """What find_package says on the wrong target, of a damaged package, and of what a project asks for."""
    text = " ".join(configure(work / "host", code=1).split())
    expect("TELMAR_D.DLL is for Windows x86-64 only" in text and "Configure for Windows x86-64" in text, text)
    for file in ("lib/TELMAR_D.lib", "TELMAR_D.PRM"):
        (package / file).rename(work / "kept")
        text = " ".join(configure(work / "damaged", *TOOLCHAINS[compiler], code=1).split())
        expect(f"lacks {file}. Unpack the whole package again." in text, text)
        (work / "kept").rename(package / file)
    version = re.search(r"^project\(.* VERSION ([\d.]+)", (source / "CMakeLists.txt").read_text(), re.M)[1]
    (work / "client").mkdir()
    for language, wanted, refusal in (
            ("C", f"{version} EXACT", ""), ("C", version.split(".")[0], ""), ("C", "99", 'requested version "99"'),
            ("NONE", "", "No language is enabled. project() must enable C or C++"),
            ("C", "COMPONENTS extra", "telmar_d has no components. Leave out COMPONENTS extra.")):
        (work / "client/CMakeLists.txt").write_text(
            f'cmake_minimum_required(VERSION 3.20)\nproject(client {language})\n'
            f'find_package(telmar_d {wanted} CONFIG REQUIRED PATHS "{package}" NO_DEFAULT_PATH '
            'NO_CMAKE_FIND_ROOT_PATH)\n')
        shutil.rmtree(work / "client/build", ignore_errors=True)
        text = run(["cmake", "-G", "Ninja", "-S", work / "client", "-B", work / "client/build", *TOOLCHAINS[compiler]],
                   code=1 if refusal else 0)
        expect(refusal in " ".join(text.split()), text)


def compare(printed, *commands):
    """Compares with what the document shows after these commands."""
    head = "".join(f"> {command}\n" for command in commands)
    blocks = re.findall(r"^```\n" + re.escape(head) + r"(.*?)^```$", document, re.M | re.S)
    expect([printed] == blocks, f"{head}prints\n{printed}but the document shows\n{''.join(blocks)}")


def ask_printer(address, code=0):
    return run([source / "scripts/with-printers", source / "tests/examples/examples.list",
                source / "scripts/run-under-wine", programs / "options.exe", address], code=code)


def check_picture():
    printed = run([source / "scripts/run-under-wine", programs / "picture.exe"], programs)
    compare(printed, "picture")
    bitmap = (programs / "picture.bmp").read_bytes()
    pixels = bitmap[struct.unpack_from("<I", bitmap, 10)[0]:]
    header = (*struct.unpack_from("<2sI", bitmap), *struct.unpack_from("<ii", bitmap, 18), bitmap[28], len(pixels))
    expect(header == (b"BM", len(bitmap), 200, 200, 32, 160000), f"picture.bmp is damaged: {header}")
    drawn = sum(pixels[at:at + 3] != b"\xff\xff\xff" for at in range(0, len(pixels), 4))
    expect(f": {drawn} of 40000 " in printed, f"picture.bmp has {drawn} pixels that are not white")


def check_dialog():
    """A program chooses an entry of the open dialog and presses OK or Cancel."""
    script = '"$1" "$2" >printed & "$1" "$3" $4 $5 $6 || kill $!; wait $!'
    for button in (OK, CANCEL):
        run([source / "scripts/run-with-display", "sh", "-c", script, "sh", source / "scripts/run-under-wine",
             programs / "color_dialog.exe", build / "bin/press_button.exe", MATCHING, POSITION, button], programs)
        printed = (programs / "printed").read_text()
        if button == OK:
            compare(printed, "color_dialog")
        else:
            before, after = printed.splitlines()
            expect(after.removeprefix("Cancel:").strip() == before.removeprefix("before:").strip(), printed)


shutil.rmtree(work, ignore_errors=True)
package.mkdir(parents=True)
run([source / "scripts/copy-client-files", build, package])
(package / "workbench").mkdir()
for sibling in "SUB":
    shutil.copy(build / f"bin/TELMAR_{sibling}.DLL", package / "workbench")
check_import_library()
if compiler == "gcc":  # the same with either
    check_messages()
configure(programs, *TOOLCHAINS[compiler], "-DCMAKE_BUILD_TYPE=Release",
          f"-DCMAKE_C_FLAGS_RELEASE=-O2 {WARNINGS}", f"-DCMAKE_CXX_FLAGS_RELEASE=-O2 {WARNINGS}")
run(["cmake", "--build", programs])

shown = re.search(r"^```c\n(.*?)^```$", document, re.M | re.S)
expect(shown and shown[1] == (source / "examples/options.c").read_text(), "the document's client is not options.c")
compare(ask_printer("127.0.164.1"), "options 127.0.164.1")
(programs / "TELMAR_B.DLL").unlink()
compare(ask_printer("127.0.164.1"), "del TELMAR_B.DLL", "options 127.0.164.1")
text = ask_printer("127.0.164.9", code=1)
expect(text.startswith("options: no answer by SNMP. "), text)
(programs / "TELMAR_D.DLL").rename(programs / "kept")
text = ask_printer("127.0.164.1", code=1)
expect(text == "options: TELMAR_D.DLL can't be loaded (last error 126)\n", text)
(programs / "kept").rename(programs / "TELMAR_D.DLL")
check_picture()
check_dialog()
print("\n".join(failures))
sys.exit(1 if failures else 0)
