"""Signs Windows files with a certificate from the environment, or leaves them alone when it names none."""
import os, pathlib, subprocess


class Signer:
    def __init__(self, certificate, password):
        self.certificate, self.password = certificate, password

    @classmethod
    def from_environment(cls):
        return cls(os.environ.get("SIGN_PFX", ""), os.environ.get("SIGN_PASS", ""))

    def sign(self, file):
        """Replaces the file by its signed form. SIGN_TIMESTAMP may name a time-stamp server."""
        if not self.certificate:
            return
        signed = pathlib.Path(f"{file}.signed")
        command = ["osslsigncode", "sign", "-pkcs12", self.certificate, "-readpass", "/dev/stdin", "-h", "sha256",
                   "-n", "Corvane for MS Office - PowerPoint", "-in", str(file), "-out", str(signed)]
        if stamp := os.environ.get("SIGN_TIMESTAMP"):
            command[2:2] = ["-ts", stamp]
        done = subprocess.run(command, input=self.password, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if done.returncode != 0:
            raise SystemExit(f"{file} could not be signed:\n{done.stdout}")
        signed.replace(file)
