#pragma once

#include <QMimeData>
#include <memory>
#include <vector>

#include "platform/qt/DragSupport.h"
#include "platform/qt/FileTransfer.h"
#include "platform/qt/PictureContents.h"
#include "support/Url.h"

namespace vantle {

/// Files, and possibly the picture in the only file, as other programs take them from the clipboard
/// or from a drag. The picture is read and converted when a program requests it.
class FileMimeData final : public QMimeData {
    Q_OBJECT

public:
    enum class Use {
        clipboard,  ///< Adds what file managers need for pasting, and the paths as text.
        drag,
    };

    /// `picture` may be null. `transfer` serves programs in a sandbox if it is available at this
    /// moment; it may be null.
    FileMimeData(std::vector<Url> files, std::shared_ptr<const PictureContents> picture, Use use,
                 std::shared_ptr<const FileTransfer> transfer = nullptr);

    QStringList formats() const override;

    /// Returns the state of the drop, which outlives this object. `wasRead` becomes true when a
    /// program has read some of the contents; an empty answer does not count. `decidesLater`
    /// becomes true when one of KDE's file managers has taken a drop, because these ask what to do
    /// with the files only after they have accepted them.
    DropState dropState() const { return {wasRead_, decidesLater_}; }

protected:
    QVariant retrieveData(const QString& type, QMetaType wanted) const override;

private:
    QStringList fileFormats() const;
    QByteArray bytesAs(const QString& type) const;

    const std::vector<Url> files_;
    const std::shared_ptr<const PictureContents> picture_;
    const Use use_;
    const std::shared_ptr<const FileTransfer> transfer_;  ///< Null if it is not available.
    const std::shared_ptr<bool> wasRead_ = std::make_shared<bool>(false);
    const std::shared_ptr<bool> decidesLater_ = std::make_shared<bool>(false);
};

}  // namespace vantle
