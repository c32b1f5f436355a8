#pragma once
// Shared pieces of the fuzz harnesses: the input as text, and checks that stop the run with the
// input saved (libFuzzer writes it on abort) and a message saying which invariant broke.

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>

// Stops the run when an invariant does not hold.
#define FUZZ_CHECK(condition, ...)                                                              \
    do {                                                                                       \
        if (!(condition)) {                                                                    \
            std::fprintf(stderr, "%s:%d: invariant broken: %s\n", __FILE__, __LINE__, #condition); \
            std::fprintf(stderr, "" __VA_ARGS__);                                              \
            std::fprintf(stderr, "\n");                                                        \
            std::abort();                                                                      \
        }                                                                                      \
    } while (false)

namespace fuzz {

inline QByteArray Bytes(const uint8_t* data, size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
}

// The input as the suite reads files and typed fields: UTF-8 (invalid sequences become U+FFFD).
inline QString Text(const uint8_t* data, size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
}

// Splits the input at its first NUL byte: the text before it, the operations after it (empty
// when there is no NUL, as in the seed files).
inline void Split(const uint8_t* data, size_t size, QByteArray& text, QByteArray& operations)
{
    const QByteArray all = Bytes(data, size);
    const qsizetype nul = all.indexOf('\0');
    text = nul < 0 ? all : all.left(nul);
    operations = nul < 0 ? QByteArray() : all.mid(nul + 1);
}

// A folder for the files of the run, removed at its end. Saving syncs to disk: the folder is
// in memory where the system allows.
inline QString ScratchFolder()
{
    static const std::unique_ptr<QTemporaryDir> folder = [] {
        auto inMemory = std::make_unique<QTemporaryDir>(QStringLiteral("/dev/shm/qel-fuzz-XXXXXX"));
        return inMemory->isValid() ? std::move(inMemory) : std::make_unique<QTemporaryDir>();
    }();
    FUZZ_CHECK(folder->isValid(), "no scratch folder");
    return folder->path();
}

// For messages: a printable form of a text.
inline QByteArray Show(const QString& text)
{
    return text.toUtf8().toPercentEncoding(" []=;#.,:+-_'\"/");
}

} // namespace fuzz
