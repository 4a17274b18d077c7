#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "http/basic_http.hpp"
#include "http/http_module.hpp"
#include "runtime/numbers.hpp"
#include "runtime/text.hpp"

namespace tessarine {

namespace {

double LengthOf(const std::string& file) {
  std::error_code error;
  const auto length = std::filesystem::file_size(file, error);
  return error ? 0 : static_cast<double>(length);
}

// The chunk size line read as hexadecimal digits up to the first other byte,
// keeping the low 32 bits as a signed integer: "FFFFFFFF" is -1 and ends the body.
std::int32_t HexSize(std::string_view line) {
  std::uint32_t value = 0;
  for (const char c : line) {
    int digit = -1;
    if (c >= '0' && c <= '9') digit = c - '0';
    if (c >= 'a' && c <= 'f') digit = c - 'a' + 10;
    if (c >= 'A' && c <= 'F') digit = c - 'A' + 10;
    if (digit < 0) break;
    value = (value << 4) | static_cast<std::uint32_t>(digit);
  }
  return static_cast<std::int32_t>(value);
}

}  // namespace

void BasicHTTP::AddToFile(const std::string& data) {
  const auto alive = alive_;
  Buffer += data;
  if (Mode != 1 && Buffer.size() > kMaxPageBytes) return Abort(kHTTPPageTooLarge);
  const double chunk = static_cast<double>(data.size());
  if (Mode == 0) {
    if (DataProgress) DataProgress(static_cast<double>(Buffer.size()), Size, chunk);
    if (!*alive) return;
    if (Size > 0 && static_cast<double>(Buffer.size()) >= Size) FinishFile();
  } else if (Mode == 1) {
    const std::int32_t f = http_detail::ToInt32(FileSize());
    if (Size < f) Size = 0;
    if (DataProgress) DataProgress(f, Size, chunk);
    if (!*alive) return;
    // However large the owner set BufferSize, memory stays within the page cap.
    const double flush_at = std::min(BufferSize, static_cast<double>(kMaxPageBytes));
    if (static_cast<double>(Buffer.size()) >= flush_at) {
      WriteToFile(false);
    } else if (Size > 0 && f == Size) {
      WriteToFile(false);
    }
  }
}

double BasicHTTP::FileSize() const {
  const double buffered = static_cast<double>(Buffer.size());
  return File.empty() ? buffered : LengthOf(File) + buffered;
}

bool BasicHTTP::WriteToFile(bool flushed) {
  const auto alive = alive_;
  bool written = false;
  if (!File.empty()) {
    std::ofstream out(File, std::ios::binary | std::ios::app);
    out.write(Buffer.data(), static_cast<std::streamsize>(Buffer.size()));
    out.close();
    written = !out.fail();
  }
  Buffer.clear();
  if (!written) {
    Cancel();
    if (OperationError) OperationError("Could Not Write File", 2);
    if (*alive) Fire(Cancelled);
    return false;
  }
  if (Size > 0 && LengthOf(File) == Size) {
    FinishFile();
  } else if (FileUpdated) {
    FileUpdated(File, flushed);
  }
  return true;
}

void BasicHTTP::FinishFile() {
  const auto alive = alive_;
  Progress("Download Complete!");
  if (!*alive) return;
  if (Connected) Cancel();
  // Copies: a handler may start the next request, which empties these.
  const std::string type = Type;
  if (Mode != 0) {
    const std::string file = File;
    if (FileReceived) FileReceived(type, file, ViaGrab);
    return;
  }
  const std::string page = IsChunked ? ParseChunked(Buffer) : Buffer;
  if (PageReceived) PageReceived(type, page, ViaGrab);
}

std::string BasicHTTP::ParseChunked(std::string_view body) {
  std::string out;
  std::size_t position = 0;
  for (;;) {
    std::string_view line;
    if (position < body.size()) {
      const std::size_t end = body.find("\r\n", position);
      line = body.substr(position, end == std::string_view::npos ? body.npos : end - position);
    }
    const std::size_t data = position + line.size() + 2;
    std::string cut;
    if (line.find(';') != std::string_view::npos) {
      cut = RTrim(line.substr(0, line.find(';')));
      line = cut;
    }
    const std::int32_t size = HexSize(line);
    if (size <= 0) break;
    if (data < body.size()) out.append(body.substr(data, static_cast<std::size_t>(size)));
    position = data + static_cast<std::size_t>(size) + 2;
  }
  return out;
}

void BasicHTTP::Stop() {
  if (Mode == 1 && HeaderReceived && !Buffer.empty()) {
    const auto alive = alive_;
    WriteToFile(true);
    if (!*alive) return;
  }
  Cancel();
  Progress("Download Cancelled");
}

void BasicHTTP::Download(const std::string& url, const std::string& file) {
  if (!ParseURL(url)) return;
  Init();
  File = file;
  std::error_code ignored;
  std::filesystem::remove(File, ignored);
  Mode = 1;
  const auto alive = alive_;
  Progress("Looking Up Host...");
  if (*alive) Connect();
}

void BasicHTTP::Grab(const std::string& url, const std::string& file) {
  if (!ParseURL(url)) return;
  Init();
  File = file;
  std::error_code ignored;
  std::filesystem::remove(File, ignored);
  Mode = 2;
  const auto alive = alive_;
  Progress("Looking Up Host...");
  if (*alive) Connect();
}

void BasicHTTP::Resume(const std::string& url, const std::string& file) {
  if (!ParseURL(url)) return;
  Init();
  File = file;
  const double length = LengthOf(File);
  if (length > 0) {
    ResumeSize = length;
    Extras.Remove("Range");
    Extras.Add("Range", "bytes=" + Format(ResumeSize, "#", ".") + "-");
  }
  Mode = 1;
  const auto alive = alive_;
  Progress("Looking Up Host...");
  if (*alive) Connect();
}

}  // namespace tessarine
