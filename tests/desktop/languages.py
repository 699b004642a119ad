"""Installs languages as a system has them."""


def compile_locale(desktop, language):
    """Installs the locale for the desktop's user, and returns the folder for $LOCPATH. "xx_XX" is
    never installed."""
    name, charset = language.split(".")
    folder = desktop.home / "locale"
    if name != "xx_XX":
        folder.mkdir(exist_ok=True)
        desktop.run("localedef", "-i", name, "-f", charset, "--no-archive", str(folder / language))
    return str(folder)
