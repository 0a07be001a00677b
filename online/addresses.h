// Every address of the maker's site, built on one base.
//
// The base is kBuiltInSite unless the environment variable TONMIRA_SITE names another, so that
// anyone can host the site. This header and its source need nothing but the standard library: the
// helper programs use them, too.
#pragma once

#include <string>
#include <string_view>

namespace online {

inline constexpr char kBuiltInSite[] = "https://www.tonmira.example";
inline constexpr char kSiteVariable[] = "TONMIRA_SITE";
inline constexpr std::size_t kLongestSite = 200;  // characters

// The folder below the base where an upload is put.
inline constexpr char kUploadFolder[] = "/usage/";

// The base that `named`, the value of TONMIRA_SITE, gives, without a slash at its end. A base is
// http or https, a host name or IPv4 address, a port where wanted and a folder where wanted, e.g.
// "http://127.0.0.1:8080/tonmira/", of letters, digits and "-._~" alone. Anything else, be it
// empty, too long, with a user name, a query or a blank, gives kBuiltInSite. The result lies in
// `named` or in kBuiltInSite; nothing is allocated.
std::string_view SiteBase(std::string_view named);

class Addresses {
 public:
  // `named` is the value of TONMIRA_SITE, empty when it is not set.
  explicit Addresses(std::string_view named) : base_(SiteBase(named)) {}

  std::string Home() const { return base_ + "/"; }
  std::string ContactUs() const { return base_ + "/contact-us"; }
  std::string Donate() const { return base_ + "/donate"; }
  std::string News() const { return base_ + "/information.html"; }
  std::string UpdateFile() const { return base_ + "/updatetonmira.txt"; }
  std::string ConnectionTest() const { return base_ + "/testcon.dat"; }

  // Where an upload is put; its name is added.
  std::string Uploads() const { return base_ + kUploadFolder; }

 private:
  std::string base_;
};

}  // namespace online
