local isNumber, err = pcall(errors.parse, "3,14")
print(isNumber, err)
if err.identifier == "errors:parse" then
    print("column " .. err.column)
end

err = select(2, pcall(errors.load, "weights"))
print(err)
print(err.cause, err.cause.column)
help(errors)
