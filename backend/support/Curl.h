// SPDX-License-Identifier: MIT
#pragma once

#include <curl/curl.h>

#include <memory>
#include <string>

template <auto Free> struct CurlDeleter {
    template <class T> void operator()(T *object) const { Free(object); }
};
using CurlTransfer = std::unique_ptr<CURL, CurlDeleter<curl_easy_cleanup>>;
using CurlForm = std::unique_ptr<curl_mime, CurlDeleter<curl_mime_free>>;
using CurlHeaders = std::unique_ptr<curl_slist, CurlDeleter<curl_slist_free_all>>;

/// A transfer to `url` whose answer goes to `answer` (up to 4 MiB; both must outlive it): HTTP only, certificates
/// verified, no redirects. Throws std::bad_alloc.
CurlTransfer newCurlTransfer(const std::string &url, std::string &answer);
