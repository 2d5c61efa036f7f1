#include <exception>
#include <memory>
#include <new>
#include <string>

#include <kelvane/kelvane.h>

#include "frontends/conversion_options.h"
#include "frontends/picture_conversion.h"
#include "frontends/picture_report.h"

// The C interface to the conversion of pictures: options and results under opaque names.

struct kelvane_options {
  kelvane::ConversionOptions options;
  std::string refusal;
  bool outOfMemory = false;  // when there was none for the refusal either
};

struct kelvane_result {
  kelvane::PictureConversion conversion;
  std::string report;
};

namespace {

using kelvane::ConversionStatus;

kelvane_status Exported(ConversionStatus status) {
  return static_cast<kelvane_status>(status);
}

static_assert(static_cast<int>(ConversionStatus::kDone) == KELVANE_DONE);
static_assert(static_cast<int>(ConversionStatus::kRefused) == KELVANE_REFUSED);
static_assert(static_cast<int>(ConversionStatus::kNoPicture) == KELVANE_NO_PICTURE);
static_assert(static_cast<int>(ConversionStatus::kIncomplete) == KELVANE_INCOMPLETE);
static_assert(static_cast<int>(ConversionStatus::kNoDocument) == KELVANE_NO_DOCUMENT);

const char* TextOf(size_t index, const char* kelvane::ConversionOption::*text) {
  const auto options = kelvane::ListedOptions();
  return index < options.size() ? options[index].*text : nullptr;
}

kelvane::PictureConversion ConversionThatFailed(std::size_t length, const char* why) {
  kelvane::PictureConversion conversion;
  conversion.status = ConversionStatus::kNoDocument;
  conversion.message = why;
  conversion.bytes = length;
  return conversion;
}

kelvane::PictureConversion Convert(const void* bytes, size_t length,
                                   const kelvane_options* options) {
  static const kelvane::ConversionOptions kNoneSet;
  try {
    return kelvane::ConvertPicture({static_cast<const unsigned char*>(bytes), length},
                                   options != nullptr ? options->options : kNoneSet);
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& error) {
    return ConversionThatFailed(length, error.what());
  }
}

}  // namespace

const char* kelvane_option_name(size_t index) {
  return TextOf(index, &kelvane::ConversionOption::name);
}

const char* kelvane_option_values(size_t index) {
  return TextOf(index, &kelvane::ConversionOption::values);
}

const char* kelvane_option_default(size_t index) {
  return TextOf(index, &kelvane::ConversionOption::standard);
}

const char* kelvane_option_help(size_t index) {
  return TextOf(index, &kelvane::ConversionOption::help);
}

kelvane_options* kelvane_options_new() {
  return new (std::nothrow) kelvane_options;
}

void kelvane_options_free(kelvane_options* options) {
  delete options;
}

kelvane_status kelvane_options_set(kelvane_options* options, const char* name, const char* value) {
  options->outOfMemory = false;
  try {
    options->refusal = kelvane::SetOption(options->options, name, value);
    return options->refusal.empty() ? KELVANE_DONE : KELVANE_REFUSED;
  } catch (...) {
    options->outOfMemory = true;
    return KELVANE_NO_DOCUMENT;
  }
}

const char* kelvane_options_message(const kelvane_options* options) {
  return options->outOfMemory ? "memory has run out" : options->refusal.c_str();
}

kelvane_result* kelvane_convert(const void* bytes, size_t length, const kelvane_options* options) {
  try {
    auto result = std::make_unique<kelvane_result>();
    result->conversion = Convert(bytes, length, options);
    result->report = kelvane::ReportAsJson(result->conversion);
    return result.release();
  } catch (...) {
    return nullptr;
  }
}

void kelvane_result_free(kelvane_result* result) {
  delete result;
}

kelvane_status kelvane_result_status(const kelvane_result* result) {
  return Exported(result->conversion.status);
}

const void* kelvane_result_data(const kelvane_result* result, size_t* length) {
  const kelvane::CFDataRef document = result->conversion.document.get();
  *length = document != nullptr ? document->bytes.size() : 0;
  return document != nullptr ? document->bytes.data() : nullptr;
}

const char* kelvane_result_report(const kelvane_result* result) {
  return result->report.c_str();
}

const char* kelvane_result_message(const kelvane_result* result) {
  return result->conversion.message.c_str();
}
