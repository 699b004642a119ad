#include "platform/wayland/Selection.h"

#include <QStringList>
#include <utility>

#include "platform/wayland/Connection.h"
#include "platform/wayland/PipeWriter.h"

namespace vantle::wayland {

bool Selection::isOffered() {
    return globals().dataControl && seat();
}

Selection::~Selection() {
    withdraw();
}

void Selection::offer(std::unique_ptr<QMimeData> contents) {
    datacontrol::Source* before = std::exchange(source_, nullptr);
    contents_ = std::move(contents);
    if (contents_) {
        source_ = datacontrol::createDataSource(globals().dataControl);
        static constexpr datacontrol::SourceListener listener{send, cancelled};
        datacontrol::addListener(source_, &listener, this);
        useToolkitQueue(source_);
        for (const QString& type : contents_->formats())
            datacontrol::offer(source_, type.toUtf8().constData());
    }
    // The device is destroyed at once; otherwise it would report everything that other programs
    // copy.
    datacontrol::Device* device = datacontrol::getDataDevice(globals().dataControl, seat());
    datacontrol::setSelection(device, source_);
    datacontrol::destroy(device);
    if (before) datacontrol::destroy(before);
    wl_display_flush(display());
}

void Selection::send(void* data, datacontrol::Source*, const char* type, std::int32_t pipe) {
    FileDescriptor end(pipe);
    const auto& contents = static_cast<Selection*>(data)->contents_;
    PipeWriter::start(std::move(end), contents->data(QString::fromUtf8(type)));
}

void Selection::cancelled(void* data, datacontrol::Source*) {
    static_cast<Selection*>(data)->withdraw();
}

void Selection::withdraw() {
    if (source_) datacontrol::destroy(std::exchange(source_, nullptr));
    contents_.reset();
}

}  // namespace vantle::wayland
