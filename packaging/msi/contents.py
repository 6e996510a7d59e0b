"""What a package installs: the files of a folder, the registry rows of the registration's list, a link to the guide."""
import pathlib
import struct

from idt import Table

# Opened by the link in the start menu and in the list of programs.
GUIDE = "docs/using.html"
DLL = "Tavrin.dll"
# A file on the disk that has a version stays before one of which the package tells none.
VERSIONED = {DLL, "tavrin_doctor.exe"}
LINK = "Tavrin - ghidul utilizatorului"

REGISTRY_KEY_PATH = 4
IS_64_BIT = 256
ROOT_OF_THE_SCOPE = -1
WHEN_REMOVED = 2


def version_of(file):
    """The version that its resource has: the installer compares it with that of the file that lies there."""
    content = file.read_bytes()
    start = content.index(struct.pack("<II", 0xFEEF04BD, 0x10000))
    high, low = struct.unpack_from("<II", content, start + 8)
    return f"{high >> 16}.{high & 0xFFFF}.{low >> 16}.{low & 0xFFFF}"


class Contents:
    """The tables that depend on the files. identify makes the id of a component from its name."""

    def __init__(self, stage, registration, product, identify):
        self.stage = stage
        self.product = product
        self.identify = identify
        self.attributes = IS_64_BIT if product["arch"] == "x64" else 0
        self.directory = Table("Directory", ["Directory s72", "Directory_Parent S72", "DefaultDir l255"], 1)
        self.component = Table("Component", ["Component s72", "ComponentId S38", "Directory_ s72", "Attributes i2",
                                             "Condition S255", "KeyPath S72"], 1)
        self.file = Table("File", ["File s72", "Component_ s72", "FileName l255", "FileSize i4", "Version S72",
                                   "Language S20", "Attributes I2", "Sequence i2"], 1)
        self.registry = Table("Registry", ["Registry s72", "Root i2", "Key l255", "Name L255", "Value L0",
                                           "Component_ s72"], 1)
        self.removed = Table("RemoveFile", ["FileKey s72", "Component_ s72", "FileName L255", "DirProperty s72",
                                            "InstallMode i2"], 1)
        self.created = Table("CreateFolder", ["Directory_ s72", "Component_ s72"], 2)
        self.shortcut = Table("Shortcut", ["Shortcut s72", "Directory_ s72", "Name l128", "Component_ s72",
                                           "Target s72", "Arguments S255", "Description L255", "Hotkey I2",
                                           "Icon_ S72", "IconIndex I2", "ShowCmd I2", "WkDir S72"], 1)
        self.feature = Table("FeatureComponents", ["Feature_ s38", "Component_ s72"], 2)
        self.media = Table("Media", ["DiskId i2", "LastSequence i2", "DiskPrompt L64", "Cabinet S255",
                                     "VolumeLabel S32", "Source S72"], 1)
        self.paths = sorted(path.relative_to(stage).as_posix() for path in stage.rglob("*") if path.is_file())
        self.add_folders()
        self.add_files()
        self.add_registration(registration)
        self.add_link()
        for row in self.component.rows:
            self.feature.add("All", row[0])
        self.media.add(1, len(self.paths), None, "#files.cab", None, None)

    def tables(self):
        return [self.directory, self.component, self.file, self.registry, self.removed, self.created, self.shortcut,
                self.feature, self.media]

    def key_of(self, path):
        return f"File{self.paths.index(path) + 1}"

    def add_folders(self):
        """The chosen folder is the programs' own by default; the product has a folder in it to itself."""
        x64 = self.product["arch"] == "x64"
        programs = "ProgramFiles64Folder" if x64 else "ProgramFilesFolder"
        self.directory.add("TARGETDIR", None, "SourceDir")
        self.directory.add("ProgramMenuFolder", "TARGETDIR", ".")
        if self.product["scope"] == "machine":
            self.directory.add(programs, "TARGETDIR", ".")
            self.directory.add("INSTALLDIR", programs, ".")
        else:
            self.directory.add("LocalAppDataFolder", "TARGETDIR", ".")
            self.directory.add("INSTALLDIR", "LocalAppDataFolder", "Programs")
        # Another one for each package, so that all may be put into one place.
        user = self.product["scope"] == "user"
        own = f"Tavrin-{self.product['arch']}" + ("-user" if user else "")
        short = f"TAVR{self.product['arch'][1:]}{'U' if user else 'M'}"
        self.directory.add("ProductFolder", "INSTALLDIR", f"{short}|{own}")
        self.folders = {".": "ProductFolder"}
        for path in self.paths:
            for parent in reversed(pathlib.PurePath(path).parents):
                self.add_folder(parent)

    def add_folder(self, folder):
        if folder.as_posix() in self.folders:
            return
        key = f"Folder{len(self.folders)}"
        self.folders[folder.as_posix()] = key
        self.directory.add(key, self.folders[folder.parent.as_posix()], f"{key.upper()}|{folder.name}")

    def add_files(self):
        for number, path in enumerate(self.paths, 1):
            key = self.key_of(path)
            name = pathlib.PurePath(path)
            versioned = path in VERSIONED
            version = version_of(self.stage / path) if versioned else None
            folder = self.folders[name.parent.as_posix()]
            self.component.add(key, self.identify(path), folder, self.attributes, None, key)
            self.file.add(key, key, f"F{number}{name.suffix[:4]}|{name.name}", (self.stage / path).stat().st_size,
                          version, "1033" if versioned else None, 0, number)
        # Emptied folders go, and the chosen one with them.
        self.created.add("INSTALLDIR", self.key_of(DLL))
        for number, folder in enumerate(self.folders.values(), 1):
            self.removed.add(f"Remove{number}", self.key_of(DLL), None, folder, WHEN_REMOVED)

    def add_registration(self, registration):
        """What both bitnesses share is one component for both, so that it goes with the last of them."""
        own = self.key_of(DLL)
        shared = "Shared"
        self.server_key = next(key for _, key, name, value in registration if value == "<file>" and not name)
        for part, key, name, value in registration:
            value = f"[#{own}]" if value == "<file>" else value
            self.add_value(f"Software\\Classes\\{key}", name or None, value,
                           shared if part in ("program", "library") else own)
        keypath = next(row[0] for row in self.registry.rows if row[-1] == shared)
        self.component.add(shared, self.identify(shared), "ProductFolder", self.attributes | REGISTRY_KEY_PATH, None,
                           keypath)
        # Where the next version finds the folder that was chosen.
        self.add_value(f"Software\\Tavrin\\{self.product['arch']}", "Folder", "[INSTALLDIR]", own)

    def add_value(self, key, name, value, component):
        self.registry.add(f"Value{len(self.registry.rows) + 1}", ROOT_OF_THE_SCOPE, key, name, value, component)

    def add_link(self):
        guide = self.key_of(GUIDE)
        name = f"{LINK} ({self.product['label']})"
        self.shortcut.add("Guide", "ProgramMenuFolder", f"TAVRIN~1|{name}", guide, f"[#{guide}]", None, None, None,
                          "Tavrin.ico", 0, None, "ProductFolder")
