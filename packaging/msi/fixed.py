"""The tables that say how a package is installed, whatever files it has."""
import time

from idt import CODEPAGE, Table

# The installer that came with Windows 7.
INSTALLER_VERSION = 500
ROMANIAN = 1048
COMPRESSED = 2
NEEDS_NO_ADMINISTRATOR = 8
READ_ONLY = 2

MIN_INCLUSIVE, MAX_INCLUSIVE, ONLY_DETECT = 0x100, 0x200, 2
SET_PROPERTY = 51
RAW_VALUE, IN_64_BIT_VIEW = 2, 16
CURRENT_USER, LOCAL_MACHINE = 1, 2

NEWER = ("O versiune mai nouă este deja instalată; instalarea s-a oprit. "
         "A newer version is already installed; nothing was changed.")
OLD_WINDOWS = "Este nevoie de Windows 7 sau mai nou. Windows 7 or newer is needed."
FOR_ALL = ("Acest pachet este pentru toți utilizatorii; pentru unul singur există pachetul -user. "
           "This package is for all users; the -user package is for one.")
FOR_ONE = ("Acest pachet este pentru un singur utilizator; pentru toți există pachetul fără -user. "
           "This package is for one user; the one without -user is for all.")

# Another copy may have registered itself since: its registration stays when this package goes.
REGISTERED_IS_OURS = "NOT REGISTEREDDLL OR REGISTEREDDLL ~= OWNDLL"

# What an installation does, in this order. No part of the component is run, so that all can be rolled back. The version
# before is removed inside the transaction: it is there again if the installation fails, and what this version has not
# any more is gone.
EXECUTE = [
    ("FindRelatedProducts", None), ("AppSearch", None), ("LaunchConditions", None),
    ("SetFolder", "FORMERFOLDER AND NOT INSTALLDIR"), ("ValidateProductID", None), ("CostInitialize", None),
    ("FileCost", None), ("CostFinalize", None), ("SetLocation", None), ("SetOwnDll", None), ("SetHelpLink", None),
    ("InstallValidate", None), ("InstallInitialize", None), ("RemoveExistingProducts", None),
    ("ProcessComponents", None), ("UnpublishFeatures", None), ("RemoveRegistryValues", REGISTERED_IS_OURS),
    ("RemoveShortcuts", None), ("RemoveFiles", None), ("RemoveFolders", None), ("CreateFolders", None),
    ("InstallFiles", None), ("CreateShortcuts", None), ("WriteRegistryValues", None), ("RegisterUser", None),
    ("RegisterProduct", None), ("PublishFeatures", None), ("PublishProduct", None), ("InstallFinalize", None),
]
UI = EXECUTE[:8] + [("ExecuteAction", None)]


def summary(product, package_code, moment):
    """The codepage comes first, as the texts are read by it."""
    table = Table("_SummaryInformation", ["PropertyId i2", "Value l255"], 1)
    platform = "x64" if product["arch"] == "x64" else "Intel"
    date = time.strftime("%Y/%m/%d %H:%M:%S", time.gmtime(moment))
    words = COMPRESSED | (NEEDS_NO_ADMINISTRATOR if product["scope"] == "user" else 0)
    for number, value in [(1, CODEPAGE), (2, "Installation Database"), (3, product["name"]), (4, product["publisher"]),
                          (5, "Installer"), (6, product["comments"]), (7, f"{platform};{ROMANIAN}"),
                          (9, package_code), (12, date), (13, date), (14, INSTALLER_VERSION), (15, words),
                          (18, "Tavrin"), (19, READ_ONLY)]:
        table.add(number, value)
    return table


def properties(product, product_code, upgrade_code):
    table = Table("Property", ["Property s72", "Value l0"], 1)
    values = {
        "ProductCode": product_code,
        "UpgradeCode": upgrade_code,
        "ProductName": product["name"],
        "ProductVersion": product["version"],
        "ProductLanguage": ROMANIAN,
        "Manufacturer": product["publisher"],
        "ARPCOMMENTS": product["comments"],
        "ARPPRODUCTICON": "Tavrin.ico",
        "ARPNOMODIFY": 1,
        "ARPSIZE": product["kilobytes"],
        # Every file is this package's afterwards, whatever lay there under its name.
        "REINSTALLMODE": "amus",
        # The user's programs are neither closed nor is his computer started anew: a DLL in use is answered with 3010.
        "MSIRESTARTMANAGERCONTROL": "Disable",
        "REBOOT": "ReallySuppress",
        "SecureCustomProperties": "FORMERFOLDER;INSTALLDIR;NEWERVERSION;OLDERVERSION;REGISTEREDDLL",
    }
    if product["scope"] == "machine":
        values["ALLUSERS"] = 1
    for name, value in values.items():
        table.add(name, value)
    return table


def upgrade(product, upgrade_code):
    """Another build of the same version is replaced too."""
    table = Table("Upgrade", ["UpgradeCode s38", "VersionMin S20", "VersionMax S20", "Language S255", "Attributes i4",
                              "Remove S255", "ActionProperty s72"], 5)
    table.add(upgrade_code, "0.0.0", product["version"], None, MIN_INCLUSIVE | MAX_INCLUSIVE, None, "OLDERVERSION")
    table.add(upgrade_code, product["version"], None, None, ONLY_DETECT, None, "NEWERVERSION")
    return table


def conditions(product):
    table = Table("LaunchCondition", ["Condition s255", "Description l255"], 1)
    table.add("Installed OR NOT NEWERVERSION", NEWER)
    table.add("Installed OR VersionNT >= 601", OLD_WINDOWS)
    if product["scope"] == "machine":
        table.add("ALLUSERS = 1", FOR_ALL)
    else:
        table.add("NOT ALLUSERS", FOR_ONE)
    return table


def search(product, server_key):
    """The folder that was chosen for the version before, and the DLL that is registered now."""
    signature = Table("AppSearch", ["Property s72", "Signature_ s72"], 2)
    signature.add("FORMERFOLDER", "FormerFolder")
    locator = Table("RegLocator", ["Signature_ s72", "Root i2", "Key s255", "Name S255", "Type I2"], 1)
    kind = RAW_VALUE | (IN_64_BIT_VIEW if product["arch"] == "x64" else 0)
    root = LOCAL_MACHINE if product["scope"] == "machine" else CURRENT_USER
    locator.add("FormerFolder", root, f"Software\\Tavrin\\{product['arch']}", "Folder", kind)
    signature.add("REGISTEREDDLL", "RegisteredDll")
    locator.add("RegisteredDll", root, f"Software\\Classes\\{server_key}", None, kind)
    return [signature, locator]


def sequences(guide, dll_key):
    action = Table("CustomAction", ["Action s72", "Type i2", "Source S64", "Target S255"], 1)
    action.add("SetFolder", SET_PROPERTY, "INSTALLDIR", "[FORMERFOLDER]")
    action.add("SetLocation", SET_PROPERTY, "ARPINSTALLLOCATION", "[ProductFolder]")
    action.add("SetOwnDll", SET_PROPERTY, "OWNDLL", f"[#{dll_key}]")
    action.add("SetHelpLink", SET_PROPERTY, "ARPHELPLINK", f"[ProductFolder]{guide}".replace("/", "\\"))
    tables = [action]
    for name, steps in [("InstallExecuteSequence", EXECUTE), ("InstallUISequence", UI)]:
        table = Table(name, ["Action s72", "Condition S255", "Sequence I2"], 1)
        for number, (step, condition) in enumerate(steps, 1):
            table.add(step, condition, 100 * number)
        tables.append(table)
    return tables


def feature(product):
    table = Table("Feature", ["Feature s38", "Feature_Parent S38", "Title L64", "Description L255", "Display I2",
                              "Level i2", "Directory_ S72", "Attributes i2"], 1)
    table.add("All", None, product["name"], product["comments"], 1, 1, "INSTALLDIR", 0)
    return table


def icon():
    table = Table("Icon", ["Name s72", "Data v0"], 1)
    table.add("Tavrin.ico", "Tavrin.ico")
    return table
