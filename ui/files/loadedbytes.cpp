// SPDX-License-Identifier: MIT
#include "ui/files/loadedbytes_p.h"

#include <algorithm>
#include <cerrno>

#include <dlfcn.h>
#include <link.h>
#include <sys/mman.h>
#include <unistd.h>

namespace vexo::hox::qt::ui {

namespace {

struct Place
{
    const quintptr address;
    const char *object = nullptr; // its file; empty for the program itself
};

// Only what nobody writes to: another part may hold a bundle that changes.
int findConstant(dl_phdr_info *object, std::size_t, void *data)
{
    auto *place = static_cast<Place *>(data);
    const auto *end = object->dlpi_phdr + object->dlpi_phnum;
    const bool is_here = std::any_of(object->dlpi_phdr, end, [&](const auto &part) {
        const quintptr offset = place->address - object->dlpi_addr - part.p_vaddr;
        return part.p_type == PT_LOAD && (part.p_flags & PF_W) == 0 && offset < part.p_memsz;
    });
    if (is_here)
        place->object = object->dlpi_name;
    return is_here ? 1 : 0; // 1 ends the search
}

// A library that was packed is unpacked to memory of no file, which would come back as zeros. Such
// memory alone can be wiped in a child process, so asking for it tells.
bool isOfFile(void *pages, std::size_t bytes)
{
    if (madvise(pages, bytes, MADV_WIPEONFORK) != 0)
        return errno == EINVAL;
    madvise(pages, bytes, MADV_KEEPONFORK);
    return false;
}

} // namespace

bool keepLoaded(const QByteArray &bytes)
{
    Place place = { quintptr(bytes.constData()) };
    if (bytes.isEmpty() || dl_iterate_phdr(findConstant, &place) == 0)
        return false;
    const bool is_program = *place.object == '\0';
    if (is_program)
        return true;
    void *library = dlopen(place.object, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
    return library && dlclose(library) == 0; // it stays; nothing is left to count
}

void giveBack(const QByteArray &constants)
{
    const auto page = quintptr(sysconf(_SC_PAGESIZE));
    const auto begin = quintptr(constants.constData());
    const quintptr first = (begin + page - 1) / page * page;
    const quintptr end = (begin + quintptr(constants.size())) / page * page;
    auto *pages = reinterpret_cast<void *>(first); // whole ones, of no other constant
    if (first < end && isOfFile(pages, end - first))
        madvise(pages, end - first, MADV_DONTNEED);
}

} // namespace vexo::hox::qt::ui
