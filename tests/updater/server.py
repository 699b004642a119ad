"""A local web server that can misbehave: nginx, with its own certificate."""

import shutil
import socket
import subprocess
import threading
import urllib.request
from pathlib import Path

CONFIGURATION = """
daemon off;
master_process off;
pid {folder}/nginx.pid;
error_log {folder}/error.log;
events {{}}
http {{
    access_log {folder}/access.log;
    default_type application/octet-stream;
    client_body_temp_path {folder}/body;
    proxy_temp_path {folder}/proxy;
    fastcgi_temp_path {folder}/fastcgi;
    uwsgi_temp_path {folder}/uwsgi;
    scgi_temp_path {folder}/scgi;
    ssl_certificate {folder}/server.pem;
    ssl_certificate_key {folder}/server.key;
    root {folder}/files;
    server {{
        listen 127.0.0.1:{secure} ssl;
        location /slow/ {{ limit_rate 100; alias {folder}/files/; }}
        location /steady/ {{ limit_rate 400k; alias {folder}/files/; }}
        location /unhurried/ {{ limit_rate 20k; alias {folder}/files/; }}
        location /moved/ {{ rewrite ^/moved/(.*) https://localhost:{secure}/$1 redirect; }}
        location /moved-to-plain/ {{ rewrite ^/[^/]*/(.*) http://vantle.example/$1 redirect; }}
        location /moved-to-file/ {{ return 302 file:///etc/passwd; }}
        location /round/ {{ return 302 /round/; }}
        location /inside/ {{ rewrite ^/inside/(.*) http://127.0.0.1:{plain}/$1 redirect; }}
        location /cut/ {{ proxy_pass http://127.0.0.1:{cut}; proxy_buffering off; }}
    }}
    server {{ listen 127.0.0.1:{plain}; }}
    server {{
        listen 127.0.0.1:{stranger} ssl;
        ssl_certificate {folder}/stranger.pem;
        ssl_certificate_key {folder}/stranger.key;
    }}
}}
"""


def free_ports(count):
    sockets = [socket.create_server(("127.0.0.1", 0)) for _ in range(count)]
    ports = [each.getsockname()[1] for each in sockets]
    for each in sockets:
        each.close()
    return ports


def make_certificate(folder, name):
    subprocess.run(
        ["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1",
         "-nodes", "-days", "2", "-subj", "/CN=localhost", "-addext",
         "subjectAltName=DNS:localhost,IP:127.0.0.1", "-keyout", folder / f"{name}.key", "-out",
         folder / f"{name}.pem"],
        check=True, capture_output=True,
    )


class Server:
    """Serves the files in `files`, until close()."""

    def __init__(self, folder):
        self._folder = Path(folder)
        self.files = self._folder / "files"
        self.files.mkdir(parents=True)
        for name in ("server", "stranger"):
            make_certificate(self._folder, name)
        self._cutting = socket.create_server(("127.0.0.1", 0))
        threading.Thread(target=self._cut_off, daemon=True).start()
        self._secure, self._plain, self._stranger = free_ports(3)
        configuration = self._folder / "nginx.conf"
        configuration.write_text(CONFIGURATION.format(
            folder=self._folder, secure=self._secure, plain=self._plain, stranger=self._stranger,
            cut=self._cutting.getsockname()[1],
        ))
        # nginx is in a folder that is not on every user's path.
        program = shutil.which("nginx", path="/usr/sbin:/usr/bin:/usr/local/sbin:/usr/local/bin")
        assert program, "nginx is not installed"
        self._process = subprocess.Popen(
            [program, "-p", self._folder, "-e", self._folder / "error.log", "-c", configuration]
        )
        self._wait_until_it_answers()

    @property
    def certificates(self):
        """Returns the certificates that a client must trust; the stranger's certificate is not
        among them."""
        return self._folder / "server.pem"

    def address(self, path):
        return f"https://127.0.0.1:{self._secure}/{path}"

    def plain_address(self, path):
        return f"http://127.0.0.1:{self._plain}/{path}"

    def strangers_address(self, path):
        return f"https://127.0.0.1:{self._stranger}/{path}"

    def save(self, name, contents):
        (self.files / name).write_bytes(contents)

    def requests(self):
        """Returns the paths that were requested."""
        log = self._folder / "access.log"
        return [line.split('"')[1].split()[1] for line in log.read_text().splitlines()]

    def close(self):
        self._process.terminate()
        self._process.wait()
        self._cutting.close()

    def _wait_until_it_answers(self):
        self.save("ready", b"")
        while True:
            assert self._process.poll() is None, (self._folder / "error.log").read_text()
            try:
                urllib.request.urlopen(self.plain_address("ready"), timeout=5).close()
                return
            except OSError:
                continue

    def _cut_off(self):
        """Promises more than it sends."""
        while True:
            try:
                connection, _ = self._cutting.accept()
            except OSError:
                return
            with connection:
                connection.recv(65536)
                connection.sendall(b"HTTP/1.0 200 OK\r\nContent-Length: 5000\r\n\r\nonly this")
