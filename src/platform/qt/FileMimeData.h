#pragma once

#include <QMimeData>
#include <memory>
#include <vector>

#include "platform/qt/DragSupport.h"
#include "platform/qt/FileTransfer.h"
#include "platform/qt/PictureContents.h"
#include "support/Url.h"

namespace vantle {

/// Files, and perhaps the picture that is in the only one, as other programs take them from the
/// clipboard or from a drag. The picture is read and converted when somebody asks for it.
class FileMimeData final : public QMimeData {
    Q_OBJECT

public:
    enum class Use {
        clipboard,  ///< With what file managers need for pasting, and the paths as text.
        drag,
    };

    /// `picture` may be null. `transfer` serves programs in a sandbox, if it is there now; it may
    /// be null.
    FileMimeData(std::vector<Url> files, std::shared_ptr<const PictureContents> picture, Use use,
                 std::shared_ptr<const FileTransfer> transfer = nullptr);

    QStringList formats() const override;

    /// They become true: `wasRead` when somebody has read some of it, where an empty answer is
    /// none; `decidesLater` when KDE's file managers have taken a drop of it, which ask what is to
    /// be done with the files only after they have said that they take them. Both outlive this.
    DropMarks marks() const { return {wasRead_, decidesLater_}; }

protected:
    QVariant retrieveData(const QString& type, QMetaType wanted) const override;

private:
    QStringList fileFormats() const;
    QByteArray as(const QString& type) const;

    const std::vector<Url> files_;
    const std::shared_ptr<const PictureContents> picture_;
    const Use use_;
    const std::shared_ptr<const FileTransfer> transfer_;  ///< Null where there is none.
    const std::shared_ptr<bool> wasRead_ = std::make_shared<bool>(false);
    const std::shared_ptr<bool> decidesLater_ = std::make_shared<bool>(false);
};

}  // namespace vantle
