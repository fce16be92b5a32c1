#include "common/line_writer.hpp"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "common/files.hpp"
#include "common/runtime_failure.hpp"

namespace benchlog {
namespace {
namespace fs = std::filesystem;

constexpr std::size_t kBufferSize = 1 << 20;

// A name beside `path` that no other writer of this run or of another process takes.
std::string WorkPathBeside(const std::string& path) {
  static std::atomic<unsigned> counter{0};
  return path + ".~" + std::to_string(::getpid()) + "." + std::to_string(counter++);
}

// The file a link points to is the one replaced, not the link.
std::string ResolvedTarget(const std::string& path) {
  std::error_code error;
  if (!fs::is_symlink(path, error)) return path;
  const fs::path target = fs::canonical(path, error);
  return error ? path : target.string();
}

// Makes the rename of a file in the folder last through a power cut. Some file systems cannot
// sync a folder; the file itself is whole either way, so that is no failure.
void SyncFolderOf(const std::string& path) {
  const fs::path folder = fs::path(path).parent_path();
  const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return;
  ::fsync(fd);
  ::close(fd);
}

// Writes all of `bytes` at the file's position (or at `offset` when it is not negative);
// returns 0 or the system's error number.
int WriteAll(int fd, std::string_view bytes, off_t offset = -1) {
  while (!bytes.empty()) {
    const ssize_t n = offset < 0 ? ::write(fd, bytes.data(), bytes.size()) : ::pwrite(fd, bytes.data(), bytes.size(), offset);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return errno;
    if (n == 0) return ENOSPC;
    bytes.remove_prefix(static_cast<std::size_t>(n));
    if (offset >= 0) offset += n;
  }
  return 0;
}

}  // namespace

LineWriter::LineWriter(const std::string& path, Mode mode) : path_(ResolvedTarget(path)), mode_(mode) {
  if (mode_ == Mode::kAppend) {
    workPath_ = path_;
    fd_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    if (fd_ < 0) throw WriteFailure(path_, errno);
    struct stat info {};
    if (::fstat(fd_, &info) == 0) startLength_ = static_cast<std::uint64_t>(info.st_size);
  } else {
    std::error_code error;
    if (fs::is_directory(path_, error) || IsReadOnly(path_)) throw PathFileAccessError();
    workPath_ = WorkPathBeside(path_);
    fd_ = ::open(workPath_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd_ < 0) throw WriteFailure(path_, errno);
    struct stat old {};
    if (::stat(path_.c_str(), &old) == 0) ::fchmod(fd_, old.st_mode & 07777);  // the old file's permissions
  }
}

LineWriter::~LineWriter() {
  if (!finished_) Abandon();
}

void LineWriter::Abandon() noexcept {
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
  finished_ = true;
  buffer_.clear();
  if (mode_ == Mode::kAppend) {
    [[maybe_unused]] const int ignored = ::truncate(path_.c_str(), static_cast<off_t>(startLength_));
  } else {
    ::unlink(workPath_.c_str());
  }
}

void LineWriter::Fail(int osError) {
  Abandon();
  throw WriteFailure(path_, osError);
}

void LineWriter::Flush() {
  if (finished_) throw PathFileAccessError();
  if (const int error = WriteAll(fd_, buffer_)) Fail(error);
  StartWriteBack(written_, buffer_.size());
  written_ += buffer_.size();
  buffer_.clear();
}

// Hands what was just written to the disk at once, without waiting, so that the sync at Close()
// finds most of a large file already written instead of writing all of it then.
void LineWriter::StartWriteBack(std::uint64_t offset, std::size_t length) const {
#ifdef __linux__
  if (length > 0) ::sync_file_range(fd_, static_cast<off_t>(offset), static_cast<off_t>(length), SYNC_FILE_RANGE_WRITE);
#else
  (void)offset;
  (void)length;
#endif
}

void LineWriter::Write(std::string_view bytes) {
  if (finished_) throw PathFileAccessError();
  if (buffer_.size() + bytes.size() < kBufferSize) {
    buffer_.append(bytes);
    return;
  }
  Flush();
  if (bytes.size() < kBufferSize) {
    buffer_.append(bytes);
  } else {  // a large piece goes to the system as it is
    if (const int error = WriteAll(fd_, bytes)) Fail(error);
    written_ += bytes.size();
  }
}

void LineWriter::WriteLine(std::string_view text) {
  Write(text);
  Write("\r\n");
}

void LineWriter::Close() {
  Flush();
  if (::fsync(fd_) != 0) Fail(errno);
  const int fd = fd_;
  fd_ = -1;
  if (::close(fd) != 0) Fail(errno);
  finished_ = true;
  if (mode_ == Mode::kAppend) return;
  if (::rename(workPath_.c_str(), path_.c_str()) != 0) {
    const int error = errno;
    ::unlink(workPath_.c_str());
    throw WriteFailure(path_, error);
  }
  SyncFolderOf(path_);
}

void OverwriteAt(const std::string& path, std::uint64_t offset, std::string_view bytes) {
  const int fd = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
  if (fd < 0) throw PathFileAccessError();
  const int error = WriteAll(fd, bytes, static_cast<off_t>(offset));
  if (error != 0) {
    ::close(fd);
    throw WriteFailure(path, error);
  }
  if (::close(fd) != 0) throw WriteFailure(path, errno);
}

}  // namespace benchlog
