-- Any value may be an error; one that cannot even be shown as well.
error(setmetatable({}, {__tostring = function() error("no text") end}))
