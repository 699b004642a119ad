"""PDF samples, written object by object."""

from picture import BLUE, GREEN, HEIGHT, RED, WIDTH, YELLOW


def pdf(*objects):
    """Returns a PDF of these objects; the first one is the catalog."""
    data, offsets = b"%PDF-1.4\n", []
    for number, content in enumerate(objects, 1):
        offsets.append(len(data))
        data += b"%d 0 obj\n%s\nendobj\n" % (number, content)
    start = len(data)
    data += b"xref\n0 %d\n0000000000 65535 f \n" % (len(objects) + 1)
    data += b"".join(b"%010d 00000 n \n" % offset for offset in offsets)
    return data + b"trailer << /Size %d /Root 1 0 R >>\nstartxref\n%d\n%%%%EOF\n" % (
        len(objects) + 1, start)


def stream(text):
    return b"<< /Length %d >>\nstream\n%s\nendstream" % (len(text), text)


def page(text, wide=WIDTH, high=HEIGHT, extra=b""):
    return pdf(
        b"<< /Type /Catalog /Pages 2 0 R >>",
        b"<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        b"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 %d %d] /Contents 4 0 R %s >>"
        % (wide, high, extra),
        stream(text),
        b"<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
    )


def two_pages():
    """Returns a red page and, twice as wide, a blue one."""
    return pdf(
        b"<< /Type /Catalog /Pages 2 0 R >>",
        b"<< /Type /Pages /Kids [3 0 R 5 0 R] /Count 2 >>",
        b"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 %d %d] /Contents 4 0 R >>" % (WIDTH, HEIGHT),
        stream(fill(RED, 0, 0, WIDTH, HEIGHT)),
        b"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 %d %d] /Contents 6 0 R >>"
        % (2 * WIDTH, HEIGHT),
        stream(fill(BLUE, 0, 0, 2 * WIDTH, HEIGHT)))


def fill(color, left, bottom, wide=WIDTH // 2, high=HEIGHT // 2):
    red, green, blue = (part / 255 for part in color)
    return b"%g %g %g rg %d %d %d %d re f\n" % (red, green, blue, left, bottom, wide, high)


def quarters():
    """Draws the quarters; the origin is at the lower left."""
    return (fill(RED, 0, HEIGHT // 2) + fill(GREEN, WIDTH // 2, HEIGHT // 2) + fill(BLUE, 0, 0) +
            fill(YELLOW, WIDTH // 2, 0))


def turned_quarters():
    """Draws the quarters for a page that lies on its left side."""
    wide, high = HEIGHT // 2, WIDTH // 2
    return (fill(RED, 0, 0, wide, high) + fill(GREEN, 0, high, wide, high) +
            fill(BLUE, wide, 0, wide, high) + fill(YELLOW, wide, high, wide, high))


def letters():
    """Returns large black letters of a font that the file does not embed."""
    return page(b"BT /F1 40 Tf 4 8 Td (HHH) Tj ET", wide=100, high=48,
                extra=b"/Resources << /Font << /F1 5 0 R >> >>")


def recursive_pages():
    return pdf(b"<< /Type /Catalog /Pages 2 0 R >>",
               b"<< /Type /Pages /Kids [2 0 R 3 0 R] /Count 2 >>",
               b"<< /Type /Pages /Kids [2 0 R] /Parent 2 0 R /Count 1 >>")


def recursive_form():
    """Returns a page that draws a form, which draws itself twice."""
    content = b"/X Do /X Do"
    form = b"<< /Type /XObject /Subtype /Form /BBox [0 0 64 48] /Resources << /XObject " \
           b"<< /X 5 0 R >> >> /Length %d >>\nstream\n%s\nendstream" % (len(content), content)
    return pdf(b"<< /Type /Catalog /Pages 2 0 R >>", b"<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
               b"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 64 48] /Contents 4 0 R "
               b"/Resources << /XObject << /X 5 0 R >> >> >>", stream(b"/X Do"), form)


def endless_work():
    """Returns a page that takes longer to draw than the decoder's time limit."""
    return page(b"0 0 1 RG " + b"0 0 m 64 48 l S " * 3_000_000)


def pdfs():
    good = page(quarters())
    return {
        "quarters.pdf": good,
        "after_garbage.pdf": b"garbage\n" + good,
        "turned.pdf": page(turned_quarters(), HEIGHT, WIDTH, b"/Rotate 90"),
        "letters.pdf": letters(),
        "two_pages.pdf": two_pages(),
        "recursive_pages.pdf": recursive_pages(),
        "recursive_form.pdf": recursive_form(),
        "endless.pdf": endless_work(),
        "huge_page.pdf": page(quarters(), 2_000_000_000, 2_000_000_000),
        "no_pages.pdf": pdf(b"<< /Type /Catalog /Pages 2 0 R >>",
                            b"<< /Type /Pages /Kids [] /Count 0 >>"),
        "cut.pdf": good[:60],
    }
