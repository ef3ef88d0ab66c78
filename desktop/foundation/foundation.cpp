// Installing the additions to Foundation.
#include "desktop/foundation/foundation.hpp"

#include "desktop/foundation/application_folders.hpp"
#include "desktop/foundation/ascii_string.hpp"
#include "desktop/foundation/attributed_string.hpp"
#include "desktop/foundation/base64.hpp"
#include "desktop/foundation/bundle.hpp"
#include "desktop/foundation/byte_count_formatter.hpp"
#include "desktop/foundation/data_detector.hpp"
#include "desktop/foundation/date.hpp"
#include "desktop/foundation/declared_arguments.hpp"
#include "desktop/foundation/delayed_perform.hpp"
#include "desktop/foundation/dictionary_files.hpp"
#include "desktop/foundation/error_description.hpp"
#include "desktop/foundation/file_manager.hpp"
#include "desktop/foundation/folder_listing.hpp"
#include "desktop/foundation/json_serialization.hpp"
#include "desktop/foundation/loading_protocol.hpp"
#include "desktop/foundation/main_operation_queue.hpp"
#include "desktop/foundation/observers.hpp"
#include "desktop/foundation/percent_encoding.hpp"
#include "desktop/foundation/predicate.hpp"
#include "desktop/foundation/property_list_serialization.hpp"
#include "desktop/foundation/regular_expression.hpp"
#include "desktop/foundation/string.hpp"
#include "desktop/foundation/string_transform.hpp"
#include "desktop/foundation/suggested_filename.hpp"
#include "desktop/foundation/timer.hpp"
#include "desktop/foundation/url.hpp"
#include "desktop/foundation/url_resources.hpp"
#include "desktop/foundation/url_session.hpp"
#include "desktop/foundation/user_defaults.hpp"
#include "desktop/runtime/side_table.hpp"

#include "bindings/objc/pool.hpp"

namespace desktop::foundation {

void install(const std::string& bundleIdentifier) {
    const objc::Pool pool;
    SideTable::shared().watchDeaths();
    installStrings();
    installAsciiStrings();
    installAttributedStrings();
    installStringTransforms();
    installPercentEncoding();
    installByteCountFormatter();
    installRegularExpressions();
    installPredicates();
    installBase64();
    registerDataDetector();
    const auto identifier = ns::String::fromUtf8(bundleIdentifier);
    installDates();
    installBundle(identifier);
    installApplicationFolders(identifier);
    installUserDefaults(identifier);
    installDictionaryFiles();
    installFileManager();
    installFolderListing();
    installErrorDescriptions();
    installPropertyListSerialization();
    installJsonSerialization();
    installDelayedPerform();
    installTimers();
    installMainOperationQueue();
    installObservers();
    installUrls();
    installUrlResources();
    installSuggestedFilename();
    installUrlSessions();
    installLoadingProtocol();
    declareArguments();
}

} // namespace desktop::foundation
