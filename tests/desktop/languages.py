"""Languages, as a system has them on which they are installed."""


def compile_locale(desktop, language):
    """Installs it for the desktop's user, and gives the folder for $LOCPATH. "xx_XX" stays away."""
    name, charset = language.split(".")
    folder = desktop.home / "locale"
    if name != "xx_XX":
        folder.mkdir(exist_ok=True)
        desktop.run("localedef", "-i", name, "-f", charset, "--no-archive", str(folder / language))
    return str(folder)
