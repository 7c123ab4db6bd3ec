// Concatenates the texts of a value's operands.
#pragma once

#include <boost/shared_ptr.hpp>

#include "IKeyResolver.h"
#include "IParamResolver.h"
#include "IPluralResolver.h"

namespace LocalizationManager::StringLocalizing::Resolving {

class KeyResolver : public IKeyResolver {
public:
    KeyResolver(boost::shared_ptr<IParamResolver> paramResolver,
                boost::shared_ptr<IPluralResolver> pluralResolver);
    KeyResolver(const KeyResolver&) = delete;
    KeyResolver& operator=(const KeyResolver&) = delete;

    /// @throws std::logic_error for a key reference that was not compiled away, and for a plural
    ///         form with another number of forms than the culture's rule; what the resolvers throw.
    void Resolve(Model::ValueView value, IResolveListener* listener, ResolvedText& output) override;

private:
    boost::shared_ptr<IParamResolver> paramResolver_;
    boost::shared_ptr<IPluralResolver> pluralResolver_;
};

}  // namespace LocalizationManager::StringLocalizing::Resolving
