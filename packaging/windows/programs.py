"""What the tests of the program for Windows build for it besides: the test programs, and the target of a drag."""
import os
import subprocess

from wine import TOP, WORK

LOG = WORK.parent / "windows-tests.log"


def build(*targets):
    sysroot = subprocess.run([TOP / "packaging/windows/sysroot"], check=True, capture_output=True, text=True).stdout.strip()
    environment = {**os.environ, "KESTREL_SYSROOT": sysroot}
    with LOG.open("w") as log:
        for command in (["cmake", "-S", TOP, "-B", WORK, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release", "-DKESTREL_TESTS=ON",
                         f"-DCMAKE_TOOLCHAIN_FILE={TOP}/packaging/windows/toolchain.cmake"],
                        ["cmake", "--build", WORK, "--target", *targets]):
            if subprocess.run(command, env=environment, stdout=log, stderr=subprocess.STDOUT, check=False).returncode != 0:
                raise SystemExit(f"the build failed: see {LOG}")
