#pragma once

#include "support/Geometry.h"

namespace vantle {

/// How large a picture is shown in the preview, and which part of it. All lengths are in points;
/// places count from the middle of the area in which the picture is shown, y downwards.
class PreviewZoom {
public:
    PreviewZoom() = default;

    /// Shows the whole picture at `fitted`. `real` is its size if each of its pixels is one of the
    /// screen, `maximum` the largest area for it.
    PreviewZoom(Size fitted, Size real, Size maximum);

    /// Returns the size at which the picture is shown.
    Size picture() const;
    /// Returns where the middle of the picture is.
    Point centre() const { return centre_; }
    /// Returns the area in which the picture is shown.
    Size area() const;

    /// Returns how much larger than the whole picture it is shown; at least 1.
    double scale() const { return scale_; }
    bool isFitted() const { return scale_ == 1; }
    bool isReal() const;
    /// Returns true if parts of the picture are hidden, so that it can be dragged around.
    bool canMove() const;

    void fit();
    /// Shows real pixels, or the whole picture if the pixels are real already. What is at `anchor`
    /// stays there, as far as that leaves no empty space.
    void toggleReal(Point anchor);
    /// Makes the picture `factor` times as large, between the whole picture and eight times its
    /// real pixels. What is at `anchor` stays there.
    void zoomBy(double factor, Point anchor);
    void moveBy(double x, double y);

    friend bool operator==(const PreviewZoom&, const PreviewZoom&) = default;

private:
    double realScale() const;
    void setScale(double scale, Point anchor);
    /// Moves the picture so that it leaves no empty space that it could fill.
    void limit();

    Size fitted_{1, 1};
    Size real_{1, 1};
    Size maximum_{1, 1};
    double scale_ = 1;  ///< 1 shows the whole picture.
    Point centre_;
};

}  // namespace vantle
