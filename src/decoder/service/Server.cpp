#include "decoder/service/Server.h"

#include <chrono>
#include <cmath>
#include <exception>
#include <utility>

#include "decoder/formats/Contents.h"
#include "decoder/protocol/MessageSocket.h"
#include "decoder/protocol/Messages.h"
#include "decoder/protocol/SealedMemory.h"

namespace vantle::decoder {
namespace {

bool isDrawable(PixelSize target) {
    return target.width > 0 && target.height > 0 &&
           std::int64_t{4} * target.width * target.height <= maximumPictureBytes;
}

class Server {
public:
    Server(int socket, Format format, const FormatModule& module)
        : socket_(socket), format_(format), module_(module) {}

    void run() {
        constexpr std::chrono::seconds timeout(decoderTimeout);
        while (auto received = receive<Request>(socket_, timeout)) {
            if (received->message.operation == Operation::close) {
                closeFile();
                continue;
            }
            Answer answer;
            // The file needs more memory or threads than the limits allow. All of them are free
            // again for the next file.
            try {
                answer = answerTo(received->message, std::move(received->descriptor));
            } catch (const std::exception&) {
                closeFile();
            }
            if (!send(socket_, answer.reply, answer.memory.get())) return;
        }
    }

private:
    struct Answer {
        Reply reply;
        FileDescriptor memory;
    };

    Answer answerTo(const Request& request, FileDescriptor file) {
        switch (request.operation) {
            case Operation::openImage:
            case Operation::openRecording:
                return open(request.operation, std::move(file));
            case Operation::page:
                if (!image_ || !image_->selectPage(request.page)) return {};
                return {imageReply(), {}};
            case Operation::draw:
                if (!image_ || !isDrawable(request.target) || !image_->selectPage(request.page))
                    return {};
                return answerWith(image_->draw(request.target));
            case Operation::frame:
                if (!recording_) return {};
                return answerWith(recording_->frame(request.time, request.maximumDimension));
            case Operation::close:
                break;
        }
        return {};
    }

    void closeFile() {
        image_.reset();
        recording_.reset();
        file_.reset();
        descriptor_.reset();
    }

    Answer open(Operation operation, FileDescriptor descriptor) {
        closeFile();
        if (!descriptor) return {};
        descriptor_ = std::move(descriptor);
        file_.emplace(descriptor_.get());
        Answer answer = openAs(operation);
        if (answer.reply.status != Status::done) closeFile();
        return answer;
    }

    Answer openAs(Operation operation) {
        const auto format = formatOf(*file_);
        if (format && *format != format_)
            return {{.status = Status::otherFormat, .format = *format}, {}};
        return operation == Operation::openImage ? openImage() : openRecording();
    }

    Answer openImage() {
        if (module_.openImage) image_ = module_.openImage(*file_);
        if (!image_) return {};
        return {imageReply(), {}};
    }

    Reply imageReply() const {
        return {.status = Status::done,
                .pixelSize = image_->pixelSize(),
                .size = image_->pointSize(),
                .pageCount = image_->pageCount()};
    }

    Answer openRecording() {
        if (module_.openRecording) recording_ = module_.openRecording(*file_);
        if (!recording_) return {};
        const auto track = recording_->videoTrackSize();
        return {{.status = Status::done,
                 .size = track.value_or(Size{}),
                 .hasVideoTrack = track.has_value(),
                 .duration = recording_->duration()},
                {}};
    }

    static Answer answerWith(const std::optional<Picture>& picture) {
        if (!picture) return {};
        auto memory = sealedMemory(picture->rgba);
        if (!memory) return {};
        return {{.status = Status::done, .picture = picture->size}, std::move(memory)};
    }

    const int socket_;
    const Format format_;
    const FormatModule& module_;
    FileDescriptor descriptor_;
    std::optional<InputFile> file_;
    std::unique_ptr<StillImage> image_;
    std::unique_ptr<Recording> recording_;
};

}  // namespace

void serve(int socket, Format format, const FormatModule& module) {
    Server(socket, format, module).run();
}

}  // namespace vantle::decoder
