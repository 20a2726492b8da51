#include "files/WrapFile.h"

#include "files/ZlibWrapper.h"

#include <optional>

namespace dravik {

bool ZlibCompress(Disk& disk, Voice& says, const std::string& source, const std::string& target)
{
    return Compressing(says, [&] {
        FileSource from(disk, source);
        WholeFile to(disk, target);
        DeflateStream wrapper(to, disk.FileLength(source));
        for (Bytes piece = from.Next(); !piece.empty(); piece = from.Next())
            wrapper.Write(piece);
        wrapper.Finish();
        to.Commit();
    });
}

bool ZlibDecompress(Disk& disk, Voice& says, const std::string& source, const std::string& target)
{
    return Decompressing(says, [&] {
        FileSource from(disk, source);
        std::optional<WholeFile> to;
        const auto read = [&](ByteSource& bytes) {
            Bytes piece = bytes.Next();
            to.emplace(disk, target);
            for (; !piece.empty(); piece = bytes.Next())
                to->Write(piece);
        };
        ReadWrapper(from, read, [&] { to.reset(); });
        to->Commit();
    });
}

} // namespace dravik
