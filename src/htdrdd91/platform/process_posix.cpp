#include "htdrdd91/base/region.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/process.h"

#include <array>
#include <atomic>
#include <chrono>
#include <ctime>
#include <dlfcn.h>
#include <elf.h>
#include <filesystem>
#include <locale.h>
#include <memory>
#include <sys/auxv.h>
#include <system_error>
#include <unistd.h>

namespace htdrdd {

namespace {

std::filesystem::path ModulePath() {
    Dl_info module{};
    Dl_info program{};
    const bool known = ::dladdr(reinterpret_cast<const void*>(&ModulePath), &module) != 0;
    // The entry address from the system is the only name of the program itself that holds however it was
    // started.
    const auto* const entry =
        reinterpret_cast<const void*>(::getauxval(AT_ENTRY)); // NOLINT(performance-no-int-to-ptr)
    const bool isProgram = ::dladdr(entry, &program) != 0 && program.dli_fbase == module.dli_fbase;
    std::error_code error;
    std::filesystem::path file;
    if (!known || isProgram)
        file = std::filesystem::read_symlink("/proc/self/exe", error);
    else
        file = std::filesystem::absolute(module.dli_fname, error);
    return file;
}

} // namespace

Text ModuleFile() { return FromNativePath(ModulePath().native()); }

Text ModuleFolder() { return FromNativePath(ModulePath().parent_path().native()); }

std::uint32_t InstanceNumber() noexcept { return static_cast<std::uint32_t>(::gettid()); }

std::uint64_t Seed() noexcept {
    static std::atomic<std::uint64_t> calls{0};
    const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
    // Mixed, so that neighbouring seeds don't lead to neighbouring numbers.
    std::uint64_t seed = static_cast<std::uint64_t>(ticks) + (std::uint64_t{InstanceNumber()} << 32U) +
                         ++calls * 0x9E3779B97F4A7C15U;
    seed = (seed ^ (seed >> 30U)) * 0xBF58476D1CE4E5B9U;
    seed = (seed ^ (seed >> 27U)) * 0x94D049BB133111EBU;
    return seed ^ (seed >> 31U);
}

Text GeneralDateNow() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    const std::unique_ptr<std::remove_pointer_t<locale_t>, decltype(&::freelocale)> plain(
        ::newlocale(LC_ALL_MASK, "C", nullptr), &::freelocale);
    std::array<char, 128> buffer{};
    const std::size_t length =
        ::strftime_l(buffer.data(), buffer.size(), CurrentRegion().dateForm.c_str(), &local, plain.get());
    return FromUtf8({buffer.data(), length});
}

} // namespace htdrdd
