"""Reads text with Tesseract's library itself, in ways that Vantle does not."""

import ctypes

import numpy

LIBRARY = "libtesseract.so.5"
LSTM_ONLY = 1
BY_DEFAULT = {"tessedit_do_invert": 1, "thresholding_method": 0}


class Tesseract:
    def __init__(self, languages):
        self.library = ctypes.CDLL(LIBRARY)
        self.library.TessBaseAPICreate.restype = ctypes.c_void_p
        self.library.TessBaseAPIGetUTF8Text.restype = ctypes.c_void_p
        self.engine = ctypes.c_void_p(self.library.TessBaseAPICreate())
        if self.library.TessBaseAPIInit2(self.engine, None, languages.encode(), LSTM_ONLY) != 0:
            raise RuntimeError(f"Tesseract has no data of {languages}")
        self.set("debug_file", "/dev/null")

    def set(self, variable, value):
        self.library.TessBaseAPISetVariable(self.engine, variable.encode(), str(value).encode())

    def text(self, picture, segmentation=3, **variables):
        """Returns the text of a gray picture."""
        for variable, value in {**BY_DEFAULT, **variables}.items():
            self.set(variable, value)
        pixels = numpy.ascontiguousarray(picture, dtype=numpy.uint8)
        height, width = pixels.shape
        self.library.TessBaseAPISetPageSegMode(self.engine, segmentation)
        self.library.TessBaseAPISetImage(
            self.engine, pixels.ctypes.data_as(ctypes.c_void_p), width, height, 1, width
        )
        self.library.TessBaseAPIRecognize(self.engine, None)
        found = self.library.TessBaseAPIGetUTF8Text(self.engine)
        text = ctypes.string_at(found).decode()
        self.library.TessDeleteText(ctypes.c_void_p(found))
        return text
