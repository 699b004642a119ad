"""Measures our thumbnails against those of other programs."""
