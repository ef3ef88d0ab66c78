"""Reads a Debian package: its control fields, its files, and how it is compressed."""
import io
import tarfile


def read_archive(data):
    """The members of an ar archive, each behind a header of 60 bytes."""
    at = 8
    while at < len(data):
        name = data[at:at + 16].decode().strip().rstrip("/")
        size = int(data[at + 48:at + 58])
        yield name, data[at + 60:at + 60 + size]
        at += 60 + size + size % 2


def read_tar(content):
    """By name as it stands in the archive ("./var"): what is told of a file, and its bytes."""
    with tarfile.open(fileobj=io.BytesIO(content)) as archive:
        return {member.name: (member, archive.extractfile(member).read() if member.isfile() else b"")
                for member in archive}


class DebianPackage:
    def __init__(self, path):
        self.members = dict(read_archive(path.read_bytes()))
        self.control_files = read_tar(self.member("control.tar"))
        self.files = read_tar(self.member("data.tar"))
        text = self.control_files["./control"][1].decode()
        self.fields = dict(line.split(": ", 1) for line in text.splitlines()
                           if ": " in line and not line.startswith(" "))

    def member(self, stem):
        return next(data for name, data in self.members.items() if name.startswith(stem))

    def infos(self):
        """What is told of all files, those that control the installation included."""
        return [info for info, _ in [*self.files.values(), *self.control_files.values()]]

    def prefix(self):
        """What the paths of its layout begin with."""
        return "./var/jb/" if self.fields["Architecture"] == "iphoneos-arm64" else "./"

    def depends(self):
        return self.fields["Depends"].split(", ")

    def file_names(self):
        return {name for name, (info, _) in self.files.items() if not info.isdir()}

    def folder_names(self):
        return {name for name, (info, _) in self.files.items() if info.isdir()}
