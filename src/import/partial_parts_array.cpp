// The growable array of parts behind ImportFilesPartialParts.
#include <kilnutil/import.h>

#include <vector>

using Parts = ImportFilesPartialParts::PARTS;

Parts::PARTS() : items_(new std::vector<ImportFilesPartialPart>()) {}

Parts::PARTS(const PARTS& other) : items_(new std::vector<ImportFilesPartialPart>(*other.items_)) {}

Parts& Parts::operator=(const PARTS& other) {
  if (this != &other) *items_ = *other.items_;
  return *this;
}

Parts::~PARTS() { delete items_; }

int Parts::GetSize() const { return static_cast<int>(items_->size()); }

void Parts::SetSize(int size) { items_->resize(size > 0 ? static_cast<std::size_t>(size) : 0); }

void Parts::Reserve(int size) {
  if (size > 0) items_->reserve(static_cast<std::size_t>(size));
}

void Parts::Add(const ImportFilesPartialPart& part) { items_->push_back(part); }

void Parts::RemoveAll() { items_->clear(); }

ImportFilesPartialPart& Parts::operator[](int index) { return items_->at(static_cast<std::size_t>(index)); }

const ImportFilesPartialPart& Parts::operator[](int index) const { return items_->at(static_cast<std::size_t>(index)); }
