"""A clean Debian in a folder, to install packages on: of the release at hand, for which they are made."""
import os
import platform
import shutil
import subprocess

RELEASE = platform.freedesktop_os_release()["VERSION_CODENAME"]
# The mounts are the command's own and go with it.
ENTER = 'mount -t proc proc "$0/proc" && exec /usr/sbin/chroot "$0" "$@"'


class CleanRoot:
    """Made once, which takes minutes and the network, and kept: a test removes what it installs."""

    def __init__(self, folder):
        self.folder = folder
        if not folder.exists():
            self.folder = folder.with_name(folder.name + ".unfinished")
            self._make()
            self.folder = self.folder.rename(folder)

    def _make(self):
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.parent.mkdir(parents=True, exist_ok=True)
        made = subprocess.run(["debootstrap", "--variant=minbase", RELEASE, self.folder], capture_output=True,
                              text=True, check=False)
        assert made.returncode == 0, f"debootstrap failed; is the network there? {made.stdout[-500:]}{made.stderr}"
        told = subprocess.run(["apt-config", "dump"], stdout=subprocess.PIPE, text=True, check=True).stdout.splitlines()
        ours = [line for line in told if line.startswith(("Acquire::Check", "Acquire::http"))]
        (self.folder / "etc/apt/apt.conf.d/90this-machine").write_text("".join(f"{line}\n" for line in ours))
        self.run("apt-get", "update", "-qq")

    @staticmethod
    def impossible():
        """Why it cannot be made here; nothing when it can."""
        if os.getuid() != 0:
            return "A clean root takes root."
        if subprocess.run(["unshare", "--mount", "true"], capture_output=True, check=False).returncode != 0:
            return "A clean root takes a mount namespace."
        return None

    def command(self, *command):
        """A command line that runs a command in there."""
        return ["unshare", "--mount", "sh", "-c", ENTER, str(self.folder), *map(str, command)]

    def run(self, *command, **environment):
        """What a command in there prints."""
        environment = {"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "LC_ALL": "C.UTF-8",
                       "DEBIAN_FRONTEND": "noninteractive", **environment}
        result = subprocess.run(self.command(*command), env=environment, capture_output=True, text=True, check=False)
        assert result.returncode == 0, f"{command}: {result.stdout}{result.stderr}"
        return result.stdout

    def set_zone(self, zone):
        self.run("ln", "-sf", f"/usr/share/zoneinfo/{zone}", "/etc/localtime")

    def purge(self, package):
        self.run("dpkg", "--purge", package)

    def traces(self, name):
        """The paths in there whose name holds this."""
        found = self.run("find", "/", "-xdev", "-iname", f"*{name}*")
        return sorted(found.splitlines())
