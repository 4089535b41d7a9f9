// Preloaded into a tool, makes one of the calls fail that change a file below a folder: what a full or broken disk, or
// the end of the program, does to it.
//
//   MVX_FAULT_FOLDER  the folder, as the tool names it
//   MVX_FAULT_CALL    number of the call that fails, from 1
//   MVX_FAULT_KIND    ENOSPC or EIO: it fails so, and later calls do as well; half: a write takes half of the bytes,
//   and
//                     the next one none; kill: the program ends there
//   MVX_FAULT_LOG     file that gets a line when the call was made

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

namespace
{
std::array<bool, 1024> watched; // By the number of an open file
int calls = 0;
bool failing = false; // The call was reached: the disk stays full

std::string setting(const char* name)
{
    const char* const value = std::getenv(name);
    return value == nullptr ? std::string() : value;
}

bool isWatched(const char* path)
{
    const std::string folder = setting("MVX_FAULT_FOLDER");
    return !folder.empty() && std::string(path).compare(0, folder.size(), folder) == 0;
}

bool isWatched(int file)
{
    return file >= 0 && std::size_t(file) < watched.size() && watched[std::size_t(file)];
}

void watch(int file, bool is)
{
    if (file >= 0 && std::size_t(file) < watched.size()) {
        watched[std::size_t(file)] = is;
    }
}

// Counts a call. Returns true when it has to fail, with errno set.
bool fails(const char* name)
{
    const std::string kind = setting("MVX_FAULT_KIND");
    if (++calls == std::atoi(setting("MVX_FAULT_CALL").c_str())) {
        const int log = int(syscall(SYS_openat, AT_FDCWD, setting("MVX_FAULT_LOG").c_str(), O_WRONLY | O_CREAT, 0600));
        syscall(SYS_write, log, name, std::strlen(name));
        syscall(SYS_close, log);
        if (kind == "kill") {
            std::raise(SIGKILL);
        }
        failing = true;
    }
    errno = kind == "EIO" ? EIO : ENOSPC;
    return failing;
}

template <typename Function> Function* next(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

template <typename Open> int opened(const char* path, int flags, Open open)
{
    const bool changes = isWatched(path) && (flags & (O_WRONLY | O_RDWR | O_CREAT)) != 0;
    if (changes && fails("open")) {
        return -1;
    }
    const int file = open();
    watch(file, changes);
    return file;
}

mode_t modeOf(int flags, va_list arguments)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? mode_t(va_arg(arguments, unsigned int)) : 0;
}
} // namespace

extern "C" {
int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return opened(path, flags, [&] { return next<int(const char*, int, ...)>("open")(path, flags, mode); });
}

int open64(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return opened(path, flags, [&] { return next<int(const char*, int, ...)>("open64")(path, flags, mode); });
}

ssize_t write(int file, const void* bytes, size_t size)
{
    const auto forward = next<ssize_t(int, const void*, size_t)>("write");
    if (isWatched(file)) {
        const bool wasFailing = failing;
        if (fails("write")) {
            const bool isHalf = !wasFailing && setting("MVX_FAULT_KIND") == "half" && size > 1;
            return isHalf ? forward(file, bytes, size / 2) : -1;
        }
    }
    return forward(file, bytes, size);
}

int fsync(int file)
{
    return isWatched(file) && fails("fsync") ? -1 : next<int(int)>("fsync")(file);
}

int fdatasync(int file)
{
    return isWatched(file) && fails("fdatasync") ? -1 : next<int(int)>("fdatasync")(file);
}

int ftruncate64(int file, off64_t size)
{
    return isWatched(file) && fails("ftruncate") ? -1 : next<int(int, off64_t)>("ftruncate64")(file, size);
}

int rename(const char* from, const char* to)
{
    return isWatched(to) && fails("rename") ? -1 : next<int(const char*, const char*)>("rename")(from, to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned int flags)
{
    return isWatched(to) && fails("rename") ? -1
                                            : next<int(int, const char*, int, const char*, unsigned int)>("renameat2")(
                                                fromFolder, from, toFolder, to, flags);
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags)
{
    return isWatched(to) && fails("link")
               ? -1
               : next<int(int, const char*, int, const char*, int)>("linkat")(fromFolder, from, toFolder, to, flags);
}

// The file is closed all the same, as the system does it.
int close(int file)
{
    const bool failed = isWatched(file) && fails("close");
    const int reason = errno;
    watch(file, false);
    const int result = next<int(int)>("close")(file);
    errno = failed ? reason : errno;
    return failed ? -1 : result;
}
}
