"""The public properties of the machine packages: what is given becomes a value of the add-in's policies, is kept through
repair and upgrade, and goes with the package."""
from dataclasses import dataclass
from xml.sax.saxutils import quoteattr

POLICY = "Software\\Policies\\Halvex\\Corvane"


@dataclass
class Property:
    name: str
    key: str  # of the policies
    value: str
    kind: str
    allowed: str  # an installer's condition; a text that is no number fulfils none that compares numbers
    rule: str

    @property
    def component(self):
        return f"Policy{self.value}"

    @property
    def remembered(self):
        return f"REMEMBERED{self.name}"

    def elements(self, own_key, guid, win64):
        """The search for what was given before, and the component. Beside the folder, what was given is remembered as it
        was: the policy's own value may have been changed by Windows' policies."""
        return f"""
<Property Id="{self.remembered}">
  <RegistrySearch Id="Find{self.component}" Root="HKLM" Key={quoteattr(own_key)} Name="{self.name}" Type="raw" Win64="{win64}"/>
</Property>
<DirectoryRef Id="INSTALLDIR">
  <Component Id="{self.component}" Guid="{guid}" Win64="{win64}">
    <RegistryValue Root="HKLM" Key={quoteattr(own_key)} Name="{self.name}" Type="string" Value="[{self.name}]" KeyPath="yes"/>
    <RegistryValue Root="HKLM" Key="{self.key}" Name="{self.value}" Type="{self.kind}" Value="[{self.name}]"/>
  </Component>
</DirectoryRef>"""

    def queries(self, sequence):
        """Who repairs a package of the machine need not be an administrator, so what is remembered counts there, also where
        that is nothing."""
        yield f"UPDATE `Component` SET `Condition` = '{self.name}' WHERE `Component` = '{self.component}'"
        yield ("INSERT INTO `LaunchCondition` (`Condition`, `Description`) "
               f"VALUES ('NOT {self.name} OR {self.allowed}', '{self.rule}')")
        yield ("INSERT INTO `CustomAction` (`Action`, `Type`, `Source`, `Target`) "
               f"VALUES ('Keep{self.component}', {SETS_PROPERTY}, '{self.name}', '[{self.remembered}]')")
        yield ("INSERT INTO `InstallExecuteSequence` (`Action`, `Condition`, `Sequence`) "
               f"VALUES ('Keep{self.component}', 'Installed OR NOT {self.name}', {sequence})")


SETS_PROPERTY = 51  # msidbCustomActionTypeTextData + msidbCustomActionTypeProperty
SEARCHED = 50  # where the search for what was given before stands among the installer's actions
PROPERTIES = [
    Property("SERVERURL", POLICY + "\\ServerURLs", "ServerURL1", "string",
             '(SERVERURL ~<< "http://" OR SERVERURL ~<< "https://")', "SERVERURL must begin with http:// or https://."),
    Property("TRACE", POLICY, "EnableTraceLogs", "integer", '(TRACE = "0" OR TRACE = "1")', "TRACE must be 0 or 1."),
    Property("TIMEOUT", POLICY, "RequestTimeoutSeconds", "integer", "(TIMEOUT >= 0 AND TIMEOUT <= 86400)",
             "TIMEOUT must be a number of seconds, 0 to 86400."),
]


def include(arch, scope, derived):
    """The include file for corvane.wxs; a user's package has no such properties."""
    own_key, win64 = f"Software\\Halvex\\Corvane for MS Office\\{arch}", "yes" if arch == "x64" else "no"
    elements = [one.elements(own_key, derived("property", one.name, arch), win64)
                for one in PROPERTIES if scope == "perMachine"]
    return "\n".join(["<Include>", *elements, "</Include>", ""])


def additions():
    """What the compiler of the tables cannot say. The search is left to the elevated part of an installation, which the
    user's part cannot deceive."""
    for place, one in enumerate(PROPERTIES):
        yield from one.queries(SEARCHED + 1 + place)
    yield "DELETE FROM `InstallUISequence` WHERE `Action` = 'AppSearch'"
